#pragma once

#include "forms/field.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace forms {

// A picture and, where the user has just chosen it, its file.
struct ChosenPicture
{
    QImage picture;
    QString path; // empty for the picture that was there before

    bool operator==(const ChosenPicture &) const = default;
};

// A button that opens a file dialog, and the chosen picture.
class PictureField final : public Field
{
public:
    // What becomes of a file that the user picks: its picture, or a null image when it is not taken.
    using Taker = std::function<QImage(const QString &path)>;

    PictureField(const char *name, const char *previewName, const platform::FileRequest &request,
                 platform::Prompts &prompts, Taker taker);
    // A second button, whose file dialog begins elsewhere. The field has its row already.
    void addButton(const char *name, const char *caption, const platform::FileRequest &request);

    QPushButton &button() const { return static_cast<QPushButton &>(widget()); }
    const QImage &picture() const { return m_chosen.picture; }
    const QString &path() const { return m_chosen.path; }
    QWidget *cell() override { return m_cell; }
    // The size, "104 x 52"; empty without a picture.
    QString text() const override;
    // Picks the file.
    void setText(const QString &path) override;

    void show(const ChosenPicture &chosen);
    void store(ChosenPicture &member) const { member = m_chosen; }

private:
    void prepare(QPushButton &button, const platform::FileRequest &request);

    platform::Prompts &m_prompts;
    Taker m_taker;
    QLabel *m_preview;
    QVBoxLayout *m_buttons;
    QWidget *m_cell;
    ChosenPicture m_chosen;
};

} // namespace forms
