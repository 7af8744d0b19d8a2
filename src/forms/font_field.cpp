#include "forms/font_field.h"

namespace forms {

using namespace Qt::StringLiterals;

QString fontCaption(const QFont &font)
{
    QString style = u"Regular"_s;
    if (font.bold() && font.italic())
        style = u"Bold Italic"_s;
    else if (font.bold())
        style = u"Bold"_s;
    else if (font.italic())
        style = u"Italic"_s;
    return u"%1 - %2 - %3"_s.arg(font.family(), style).arg(font.pointSize());
}

FontField::FontField(const char *name, const char *labelName, platform::Prompts &prompts)
    : Field(new QPushButton(u"Choose..."_s), name), m_label(new QLabel),
      m_cell(sideBySide({m_label, &widget()}))
{
    m_label->setObjectName(QLatin1String(labelName));
    m_label->setTextFormat(Qt::PlainText);
    m_label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    button().setAutoDefault(false);
    QObject::connect(&button(), &QPushButton::clicked, &button(), [this, &prompts] {
        if (const auto chosen = prompts.font(m_font))
            choose(*chosen);
    });
}

void FontField::show(const QFont &font)
{
    m_font = font;
    m_label->setText(fontCaption(font));
}

void FontField::choose(const QFont &font)
{
    show(font);
    m_isChosen = true;
    changed();
}

void FontField::setText(const QString &text)
{
    QFont font;
    if (font.fromString(text))
        choose(font);
}

} // namespace forms
