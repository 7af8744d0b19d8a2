#include "controls/gauge/gauge_dialog.h"

namespace controls {

using namespace Qt::StringLiterals;

std::optional<forms::Verdict> validateGauge(const forms::Typed &typed)
{
    if (auto verdict = refusedScale(typed))
        return verdict;
    if (typed.number("txtMax") < typed.number("txtMin"))
        return forms::refusal(u"Invalid Min and Max value "_s);
    return std::nullopt;
}

GaugeDialog::GaugeDialog(Gauge &gauge)
    : PropertyDialog(gauge, u"Analogue Dial Properties"_s, withPivot(gauge.get(), gauge.host().screen()))
{
    using V = GaugeValues;
    scaleRows();
    addGroup("Needle");
    number(&V::curCenterX, {"txtCenterX", "Centre X", "pixels"});
    number(&V::curCenterY, {"txtCenterY", "Centre Y", "pixels"});
    number(&V::curPointerLength, {"txtPointerLen", "Pointer &length", "pixels"});
    number(&V::curPointerWidth, {"txtPointerWidth", "Pointer &width", "pixels"});
    number(&V::curMinAngle, {"txtMinAngle", "Angle at minimum", "degrees"});
    number(&V::curMaxAngle, {"txtMaxAngle", "Angle at maximum", "degrees"});
    addGroup("Colour");
    colourRows();
    finish({{"cmdAdd", "&Apply", forms::Press::Accept}, {"cmdExit", "&Cancel", forms::Press::Cancel}});
}

void GaugeDialog::set(GaugeValues &values)
{
    values = placed(values, host().screen());
    control().set(values);
}

} // namespace controls
