#pragma once

#include "forms/field.h"

#include <QFont>
#include <QPushButton>

namespace forms {

// "Arial - Bold Italic - 12": face, style and size in points.
QString fontCaption(const QFont &font);

// A button that opens the font dialog, and the chosen font's caption.
class FontField final : public Field
{
public:
    FontField(const char *name, const char *labelName, platform::Prompts &prompts);

    QPushButton &button() const { return static_cast<QPushButton &>(widget()); }
    QWidget *cell() override { return m_cell; }
    QString text() const override { return m_font.toString(); }
    void setText(const QString &text) override;

    const QFont &font() const { return m_font; }
    void show(const QFont &font);
    // A font in which nothing was chosen keeps its every property.
    void store(QFont &member) const { member = m_font; }

private:
    QLabel *m_label;
    QWidget *m_cell;
    QFont m_font;
};

} // namespace forms
