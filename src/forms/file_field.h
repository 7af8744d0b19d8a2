#pragma once

#include "forms/field.h"

#include <QPushButton>

namespace forms {

// A button that opens a file dialog, and the picture of the chosen file. Its text is the path.
class FileField final : public Field
{
public:
    // The request's preview makes the picture, also the one that stands in the dialog.
    FileField(const char *name, const char *previewName, platform::FileRequest request,
              platform::Prompts &prompts);

    QPushButton &button() const { return static_cast<QPushButton &>(widget()); }
    QWidget *cell() override { return m_cell; }
    bool hasPicture() const { return !m_picture->pixmap(Qt::ReturnByValue).isNull(); }
    QString text() const override { return m_path; }
    void setText(const QString &path) override;

    void show(const QString &path);
    void store(QString &member) const { member = m_path; }

private:
    platform::FileRequest m_request;
    QLabel *m_picture;
    QWidget *m_cell;
    QString m_path;
};

} // namespace forms
