#include "controls/bar_graph/bar_graph_dialog.h"

#include "common/number_text.h"
#include "common/number_parser.h"

namespace controls {

using common::leadingNumber;
using common::toInteger;
using common::parseNumber;

std::optional<QString> validate(const BarGraphForm &form)
{
    const double min = leadingNumber(form.min);
    const double max = leadingNumber(form.max);
    const double value = leadingNumber(form.defaultVal);
    const double alpha = leadingNumber(form.alfa);
    if (max == min)
        return QStringLiteral("Can't use same value for minimum and maximum ");
    // The far end may be the lower one: a reversed bar.
    if (value < std::min(min, max) || value > std::max(min, max))
        return QStringLiteral("Default value should be between Min and Max value");
    if (alpha < 0 || alpha > 100)
        return QStringLiteral("Invalid Alpha Value");
    return std::nullopt;
}

BarLine barLine(const BarGraph &bar, int barType)
{
    const float startX = bar.get().curLeft / bar.host().screen().tx;
    const float startY = bar.get().curTop / bar.host().screen().ty;
    if (barType == 0)
        return {startX, startY, startX + bar.curWidth(), startY, bar.curHeight()};
    return {startX, startY, startX, startY + bar.curHeight(), bar.curWidth()};
}

BarGraphDialog::BarGraphDialog(BarGraph &bar)
    : PropertyDialog(bar, QStringLiteral("Bar Graph Properties"), "cmdApply", "cmdCancel"), m_bar(bar)
{
    const BarGraphValues &values = bar.get();
    const QString pixels = QStringLiteral("pixels");

    addGroup(QStringLiteral("Variable"));
    m_variable = addVariable("cmbVariable", QStringLiteral("Va&riable"), values.curVarID);
    m_min = addNumber("txtMin", QStringLiteral("Mi&nimum"), shown(values.curMin));
    m_max = addNumber("txtMax", QStringLiteral("Ma&ximum"), shown(values.curMax));
    m_defaultVal = addNumber("txtDefaultVal", QStringLiteral("&Default value"), shown(values.curDefaultVal));
    addGroup(QStringLiteral("Bar"));
    m_barType = new QComboBox;
    m_barType->setObjectName(QStringLiteral("cmbBarType"));
    m_barType->addItems({QStringLiteral("Horizontal"), QStringLiteral("Vertical")});
    m_barType->setCurrentIndex(values.isHorizontal() ? 0 : 1);
    addRow(QStringLiteral("&Type"), m_barType);
    m_startX = addNumber("txtStartX", QStringLiteral("Start X"), {}, pixels);
    m_startY = addNumber("txtStartY", QStringLiteral("Start Y"), {}, pixels);
    m_endX = addNumber("txtEndX", QStringLiteral("End X"), {}, pixels);
    m_endY = addNumber("txtEndY", QStringLiteral("End Y"), {}, pixels);
    m_barWidth = addNumber("txtBarWidth", QStringLiteral("Bar &width"), {}, pixels);
    showLine(m_barType->currentIndex());
    connect(m_barType, &QComboBox::currentIndexChanged, this, &BarGraphDialog::showLine);
    addGroup(QStringLiteral("Colour"));
    m_colour = addColour("picForeColour", "cmdResetForeColour", QStringLiteral("C&olour"),
                         values.curColour.packed());
    addColourVariable(values.curColourVariable, values.curColourVarMin, values.curColourVarMax);
    m_alfa = addNumber("txtAlfa", QStringLiteral("O&pacity"), alphaPercentText(values.curAlfa),
                       QStringLiteral("%"));
    finishLayout();
}

void BarGraphDialog::showLine(int barType)
{
    const BarLine line = barLine(m_bar, barType);
    m_startX->setText(shown(line.startX));
    m_startY->setText(shown(line.startY));
    m_endX->setText(shown(line.endX));
    m_endY->setText(shown(line.endY));
    m_barWidth->setText(shown(line.barWidth));
}

BarGraphForm BarGraphDialog::form() const
{
    BarGraphForm form;
    form.variable = chosenVariable(*m_variable);
    form.barType = m_barType->currentIndex();
    form.startX = m_startX->text();
    form.startY = m_startY->text();
    form.endX = m_endX->text();
    form.endY = m_endY->text();
    form.barWidth = m_barWidth->text();
    form.colour = m_colour->colour();
    form.min = m_min->text();
    form.max = m_max->text();
    form.defaultVal = m_defaultVal->text();
    form.alfa = m_alfa->text();
    form.colourVariable = colourVariableForm();
    return form;
}

void BarGraphDialog::write()
{
    const BarGraphForm typed = form();
    const platform::Screen &screen = m_bar.host().screen();
    BarGraphValues values = m_bar.get();
    values.curVarID = typed.variable;
    values.curBarWidth = toInteger<quint8>(parseNumber(typed.barWidth));
    values.curColour.setPacked(typed.colour);
    values.curMin = detail::toSingle(parseNumber(typed.min));
    values.curMax = detail::toSingle(parseNumber(typed.max));
    values.curDefaultVal = detail::toSingle(parseNumber(typed.defaultVal));
    values.curBarType = toInteger<quint8>(typed.barType);
    values.curAlfa = alphaFromPercent(typed.alfa, values.curAlfa);
    const double startX = parseNumber(typed.startX);
    const double startY = parseNumber(typed.startY);
    values.curLeft = toInteger<qint16>(startX * static_cast<double>(screen.tx));
    values.curTop = toInteger<qint16>(startY * static_cast<double>(screen.ty));
    const auto length = toInteger<qint16>(values.isHorizontal() ? parseNumber(typed.endX) - startX
                                                                : parseNumber(typed.endY) - startY);
    values.curColourVariable = typed.colourVariable.variable;
    values.curColourVarMin = detail::toSingle(parseNumber(typed.colourVariable.minimum));
    values.curColourVarMax = detail::toSingle(parseNumber(typed.colourVariable.maximum));
    m_bar.set(placed(values, length, m_bar.host().VideoType(), screen));
    m_length = length;
}

void BarGraphDialog::applied() { m_bar.AssignProperties(m_length); }

} // namespace controls
