#pragma once

#include "controls/gauge/gauge.h"
#include "controls/property_dialog.h"

namespace controls {

// What the dialog of the gauge holds, as typed.
struct GaugeForm
{
    qint32 variable = 0;      // catalogue index
    QString centerX, centerY; // canvas pixels
    QString pointerLength, pointerWidth;
    quint32 colour = 0;
    QString minAngle, maxAngle; // degrees
    QString min, max, defaultVal;
    ColourVariableForm colourVariable;
};

std::optional<QString> validate(const GaugeForm &form);

// "Analogue Dial Properties".
class GaugeDialog final : public PropertyDialog
{
    Q_OBJECT

public:
    explicit GaugeDialog(Gauge &gauge);

protected:
    std::optional<QString> validate() const override { return controls::validate(form()); }
    void write() override;
    void applied() override;

private:
    GaugeForm form() const;

    Gauge &m_gauge;
    QComboBox *m_variable;
    QLineEdit *m_min, *m_max, *m_defaultVal;
    QLineEdit *m_minAngle, *m_maxAngle;
    QLineEdit *m_centerX, *m_centerY;
    QLineEdit *m_pointerLen, *m_pointerWidth;
    ColourSwatch *m_colour;
};

} // namespace controls
