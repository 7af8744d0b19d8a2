#include "forms/slider_field.h"

#include <algorithm>

namespace forms {

SliderField::SliderField(const char *name, int minimum, int maximum)
    : Field(new QSlider(Qt::Horizontal), name), m_value(new QLabel), m_cell(sideBySide({&widget(), m_value}))
{
    const QFontMetrics metrics = m_value->fontMetrics();
    m_value->setMinimumWidth(std::max(metrics.horizontalAdvance(QString::number(minimum)),
                                      metrics.horizontalAdvance(QString::number(maximum))));
    m_value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    slider().setRange(minimum, maximum);
    QObject::connect(&slider(), &QSlider::valueChanged, m_value, [this](int value) {
        m_value->setNum(value);
        changed();
    });
    m_value->setNum(slider().value());
}

void SliderField::show(int value)
{
    slider().setValue(value);
    m_shown = slider().value();
}

} // namespace forms
