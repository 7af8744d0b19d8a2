#pragma once

#include "controls/gauge/gauge.h"
#include "controls/property_dialog.h"

namespace controls {

std::optional<forms::Verdict> validateGauge(const forms::Typed &typed);

// "Analogue Dial Properties".
class GaugeDialog final : public PropertyDialog<Gauge, GaugeValues>
{
public:
    explicit GaugeDialog(Gauge &gauge);

protected:
    std::optional<forms::Verdict> validate(const forms::Typed &typed) const override
    {
        return validateGauge(typed);
    }
    void set(GaugeValues &values) override;
};

} // namespace controls
