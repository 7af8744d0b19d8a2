#pragma once

#include "forms/field.h"

#include <QSlider>

#include <concepts>

namespace forms {

// A slider with its value beside it.
class SliderField final : public Field
{
public:
    SliderField(const char *name, int minimum, int maximum);

    QSlider &slider() const { return static_cast<QSlider &>(widget()); }
    QWidget *cell() override { return m_cell; }
    QString text() const override { return QString::number(slider().value()); }
    void setText(const QString &text) override { slider().setValue(text.toInt()); }

    void show(int value);
    template <std::integral T>
    void store(T &member) const
    {
        if (slider().value() != m_shown)
            member = static_cast<T>(slider().value());
    }

private:
    QLabel *m_value;
    QWidget *m_cell;
    int m_shown = 0;
};

} // namespace forms
