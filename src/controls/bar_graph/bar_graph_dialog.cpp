#include "controls/bar_graph/bar_graph_dialog.h"

#include <algorithm>

namespace controls {

using namespace Qt::StringLiterals;
using common::toInteger;

std::optional<forms::Verdict> validateBarGraph(const forms::Typed &typed)
{
    if (auto verdict = refusedScale(typed))
        return verdict;
    // The far end may be the lower one: a reversed bar.
    const auto [low, high] = std::minmax({typed.number("txtMin"), typed.number("txtMax")});
    const double value = typed.number("txtDefaultVal");
    if (value < low || value > high)
        return forms::refusal(u"Default value should be between Min and Max value"_s);
    return refusedOpacity(typed, u"Invalid Alpha Value"_s);
}

BarLine barLine(const BarGraph &bar, bool isHorizontal)
{
    const float startX = bar.host().screen().toPixelsX(bar.get().curLeft);
    const float startY = bar.host().screen().toPixelsY(bar.get().curTop);
    if (isHorizontal)
        return {startX, startY, startX + bar.curWidth(), startY, bar.curHeight()};
    return {startX, startY, startX, startY + bar.curHeight(), bar.curWidth()};
}

BarGraphDialog::BarGraphDialog(BarGraph &bar)
    : PropertyDialog(bar, u"Bar Graph Properties"_s, {bar.get(), barLine(bar, bar.get().isHorizontal())})
{
    using V = BarOnLine;
    scaleRows();
    addGroup("Bar");
    forms::ListField &type =
        choice(&V::curBarType, {"cmbBarType", "&Type"}, {{u"Horizontal"_s, 0}, {u"Vertical"_s, 1}}, 1);
    const auto &startX = number(&V::startX, {"txtStartX", "Start X", "pixels"});
    const auto &startY = number(&V::startY, {"txtStartY", "Start Y", "pixels"});
    const auto &endX = number(&V::endX, {"txtEndX", "End X", "pixels"});
    const auto &endY = number(&V::endY, {"txtEndY", "End Y", "pixels"});
    const auto &width = number(&V::barWidth, {"txtBarWidth", "Bar &width", "pixels"});
    react(type, [this, &type, &startX, &startY, &endX, &endY, &width] {
        V values = kept();
        static_cast<BarLine &>(values) = barLine(control(), type.row() == 0);
        showValues(values, {&startX, &startY, &endX, &endY, &width});
    });
    addGroup("Colour");
    colourAndOpacity();
    finish(forms::applyAndCancel());
}

void BarGraphDialog::set(BarOnLine &values)
{
    const platform::Screen &screen = host().screen();
    values.curBarWidth = toInteger<quint8>(static_cast<double>(values.barWidth));
    const QPointF start = screen.toTwips(QPointF(values.startX, values.startY));
    values.curLeft = toInteger<qint16>(start.x());
    values.curTop = toInteger<qint16>(start.y());
    const auto length = toInteger<qint16>(static_cast<double>(
        values.isHorizontal() ? values.endX - values.startX : values.endY - values.startY));
    BarGraphValues &bar = values;
    bar = placed(bar, length, host().VideoType(), screen);
    control().set(bar);
    m_length = length;
}

void BarGraphDialog::applied() { control().AssignProperties(m_length); }

} // namespace controls
