#include "controls/gauge/gauge_dialog.h"

#include "common/number_text.h"
#include "common/number_parser.h"

namespace controls {

using common::leadingNumber;
using common::toInteger;
using common::parseNumber;

std::optional<QString> validate(const GaugeForm &form)
{
    const double min = leadingNumber(form.min);
    const double max = leadingNumber(form.max);
    if (max == min)
        return QStringLiteral("Can't use same value for minimum and maximum ");
    if (max < min)
        return QStringLiteral("Invalid Min and Max value ");
    return std::nullopt;
}

GaugeDialog::GaugeDialog(Gauge &gauge)
    : PropertyDialog(gauge, QStringLiteral("Analogue Dial Properties"), "cmdAdd", "cmdExit"), m_gauge(gauge)
{
    const GaugeValues &values = gauge.get();
    const auto number = [](int value) { return QString::number(value); };
    const QString pixels = QStringLiteral("pixels");
    const QString degrees = QStringLiteral("degrees");

    addGroup(QStringLiteral("Variable"));
    m_variable = addVariable("cmbVariable", QStringLiteral("Va&riable"), values.curVarID);
    m_min = addNumber("txtMin", QStringLiteral("Mi&nimum"), shown(values.curMin));
    m_max = addNumber("txtMax", QStringLiteral("Ma&ximum"), shown(values.curMax));
    m_defaultVal = addNumber("txtDefaultVal", QStringLiteral("&Default value"), shown(values.curDefaultVal));
    addGroup(QStringLiteral("Needle"));
    const qint32 centreX = std::get<qint32>(gauge.read("curCenterX"));
    const qint32 centreY = std::get<qint32>(gauge.read("curCenterY"));
    m_centerX = addNumber("txtCenterX", QStringLiteral("Centre X"), number(centreX), pixels);
    m_centerY = addNumber("txtCenterY", QStringLiteral("Centre Y"), number(centreY), pixels);
    m_pointerLen = addNumber("txtPointerLen", QStringLiteral("Pointer &length"),
                             number(values.curPointerLength), pixels);
    m_pointerWidth = addNumber("txtPointerWidth", QStringLiteral("Pointer &width"),
                               number(values.curPointerWidth), pixels);
    m_minAngle =
        addNumber("txtMinAngle", QStringLiteral("Angle at minimum"), number(values.curMinAngle), degrees);
    m_maxAngle =
        addNumber("txtMaxAngle", QStringLiteral("Angle at maximum"), number(values.curMaxAngle), degrees);
    addGroup(QStringLiteral("Colour"));
    m_colour = addColour("picForeColour", "cmdResetForeColour", QStringLiteral("C&olour"),
                         values.curColour.packed());
    addColourVariable(values.curColourVariable, values.curColourVarMin, values.curColourVarMax);
    finishLayout();
}

GaugeForm GaugeDialog::form() const
{
    GaugeForm form;
    form.variable = chosenVariable(*m_variable);
    form.centerX = m_centerX->text();
    form.centerY = m_centerY->text();
    form.pointerLength = m_pointerLen->text();
    form.pointerWidth = m_pointerWidth->text();
    form.colour = m_colour->colour();
    form.minAngle = m_minAngle->text();
    form.maxAngle = m_maxAngle->text();
    form.min = m_min->text();
    form.max = m_max->text();
    form.defaultVal = m_defaultVal->text();
    form.colourVariable = colourVariableForm();
    return form;
}

void GaugeDialog::write()
{
    const GaugeForm typed = form();
    GaugeValues values = m_gauge.get();
    values.curVarID = typed.variable;
    values.curCenterX = toInteger<qint16>(parseNumber(typed.centerX));
    values.curCenterY = toInteger<qint16>(parseNumber(typed.centerY));
    values.curPointerLength = toInteger<quint8>(parseNumber(typed.pointerLength));
    values.curPointerWidth = toInteger<quint8>(parseNumber(typed.pointerWidth));
    values.curColour.setPacked(typed.colour);
    values.curMinAngle = toInteger<qint16>(parseNumber(typed.minAngle));
    values.curMaxAngle = toInteger<qint16>(parseNumber(typed.maxAngle));
    values.curMin = detail::toSingle(parseNumber(typed.min));
    values.curMax = detail::toSingle(parseNumber(typed.max));
    values.curDefaultVal = detail::toSingle(parseNumber(typed.defaultVal));
    values.curColourVariable = typed.colourVariable.variable;
    values.curColourVarMin = detail::toSingle(parseNumber(typed.colourVariable.minimum));
    values.curColourVarMax = detail::toSingle(parseNumber(typed.colourVariable.maximum));
    m_gauge.set(placed(values, m_gauge.host().screen()));
}

void GaugeDialog::applied()
{
    m_gauge.AssignProperties();
    m_gauge.AssignBack();
}

} // namespace controls
