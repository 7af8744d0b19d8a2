#pragma once

#include "common/rounding.h"
#include "forms/field.h"
#include "platform/faces.h"

#include <QFont>
#include <QPushButton>

namespace forms {

// "Arial - Bold Italic - 12": face, style and size in points.
QString fontCaption(const QFont &font);

// A font that lies in six members of a struct of values; the size is points.
template <typename Size, typename Flag, typename Face = QString>
struct FontParts
{
    Face &face;
    Size &size;
    Flag &bold;
    Flag &italic;
    Flag &strikethrough;
    Flag &underline;
};

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
    template <typename Size, typename Flag, typename Face>
    void show(const FontParts<Size, Flag, Face> &parts)
    {
        QFont font(static_cast<const QString &>(parts.face).trimmed());
        if (parts.size > 0)
            font.setPointSize(parts.size);
        font.setBold(parts.bold);
        font.setItalic(parts.italic);
        font.setStrikeOut(parts.strikethrough);
        font.setUnderline(parts.underline);
        show(font);
        m_isChosen = false;
    }
    // Parts keep what they hold unless a font was chosen. Throws RunTimeError when a size does not fit.
    template <typename Size, typename Flag, typename Face>
    void store(const FontParts<Size, Flag, Face> &parts) const
    {
        if (!m_isChosen)
            return;
        parts.size = common::toInteger<Size>(m_font.pointSize());
        parts.face = platform::withoutFoundry(m_font.family());
        parts.bold = static_cast<Flag>(m_font.bold());
        parts.italic = static_cast<Flag>(m_font.italic());
        parts.strikethrough = static_cast<Flag>(m_font.strikeOut());
        parts.underline = static_cast<Flag>(m_font.underline());
    }

private:
    void show(const QFont &font);
    void choose(const QFont &font);

    QLabel *m_label;
    QWidget *m_cell;
    QFont m_font;
    bool m_isChosen = false; // by the user, or a correction
};

} // namespace forms
