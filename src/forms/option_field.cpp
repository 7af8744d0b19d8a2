#include "forms/option_field.h"

#include <algorithm>

namespace forms {

OptionField::OptionField(const std::vector<Option> &options)
    : Field(new QRadioButton, options.front().name), m_buttons{static_cast<QRadioButton *>(&widget())}
{
    while (m_buttons.size() < options.size())
        m_buttons.push_back(new QRadioButton);
    for (std::size_t i = 0; i < options.size(); ++i) {
        m_buttons[i]->setObjectName(QLatin1String(options[i].name));
        m_buttons[i]->setText(QString::fromUtf8(options[i].caption));
    }
    m_cell = sideBySide({m_buttons.begin(), m_buttons.end()}, true);
    for (QRadioButton *button : m_buttons) {
        QObject::connect(button, &QRadioButton::toggled, button, [this](bool on) {
            if (on)
                changed();
        });
    }
}

int OptionField::row() const
{
    const auto chosen = std::ranges::find_if(m_buttons, &QRadioButton::isChecked);
    return chosen == m_buttons.end() ? -1 : static_cast<int>(chosen - m_buttons.begin());
}

void OptionField::show(int value)
{
    choose(value);
    m_shown = row();
}

void OptionField::choose(int row)
{
    if (row >= 0 && row < static_cast<int>(m_buttons.size()))
        m_buttons[static_cast<std::size_t>(row)]->setChecked(true);
}

} // namespace forms
