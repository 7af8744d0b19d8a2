#include "forms/list_field.h"

namespace forms {

namespace {

constexpr int LongestList = 20; // rows, before it is scrolled

} // namespace

ListField::ListField(const char *name, const Choices &choices, int otherwise)
    : Field(new QComboBox, name), m_otherwise(otherwise)
{
    for (const Choice &choice : choices)
        box().addItem(choice.text, choice.value);
    box().setMaxVisibleItems(LongestList);
    QObject::connect(&box(), &QComboBox::currentIndexChanged, &box(), [this] { changed(); });
}

void ListField::show(int value)
{
    const int found = box().findData(value);
    box().setCurrentIndex(found < 0 ? m_otherwise : found);
    m_kept = found < 0 && m_takesShown ? -1 : box().currentIndex();
}

TextListField::TextListField(const char *name, const QStringList &texts) : Field(new QComboBox, name)
{
    box().addItems(texts);
    box().setMaxVisibleItems(LongestList);
    QObject::connect(&box(), &QComboBox::currentTextChanged, &box(), [this] { changed(); });
}

void TextListField::show(const QString &text)
{
    if (box().findText(text) < 0)
        box().addItem(text);
    box().setCurrentText(text);
}

CheckField::CheckField(QAbstractButton *button, const char *name) : Field(button, name)
{
    button->setCheckable(true);
    QObject::connect(button, &QAbstractButton::toggled, button, [this] { changed(); });
}

} // namespace forms
