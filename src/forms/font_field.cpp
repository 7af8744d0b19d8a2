#include "forms/font_field.h"

namespace forms {

QString fontCaption(const QFont &font)
{
    QString style = QStringLiteral("Regular");
    if (font.bold() && font.italic())
        style = QStringLiteral("Bold Italic");
    else if (font.bold())
        style = QStringLiteral("Bold");
    else if (font.italic())
        style = QStringLiteral("Italic");
    return QStringLiteral("%1 - %2 - %3").arg(font.family(), style).arg(font.pointSize());
}

FontField::FontField(const char *name, const char *labelName, platform::Prompts &prompts)
    : Field(new QPushButton(QStringLiteral("Choose...")), name), m_label(new QLabel),
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
