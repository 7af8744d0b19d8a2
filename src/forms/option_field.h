#pragma once

#include "forms/field.h"

#include <QRadioButton>

#include <concepts>
#include <vector>

namespace forms {

// One of several choices, the contract name of its button and its caption.
struct Option
{
    const char *name;
    const char *caption;
};

// A row of radio buttons; the value is the number of the chosen one, from 0. A value that no button has shows
// none chosen; it is kept unless the user chooses.
class OptionField final : public Field
{
public:
    explicit OptionField(const std::vector<Option> &options);

    QWidget *cell() override { return m_cell; }
    QString text() const override { return QString::number(row()); }
    int row() const override;
    void setText(const QString &text) override { choose(text.toInt()); }

    void show(int value);
    template <std::integral T>
    void store(T &member) const
    {
        if (row() != m_shown)
            member = static_cast<T>(row());
    }

private:
    void choose(int row);

    std::vector<QRadioButton *> m_buttons;
    QWidget *m_cell;
    int m_shown = -1;
};

} // namespace forms
