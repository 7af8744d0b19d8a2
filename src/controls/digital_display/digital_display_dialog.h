#pragma once

#include "controls/digital_display/digital_display.h"
#include "controls/text/text_dialog.h"

namespace controls {

// A display with what its dialog asks besides.
struct LimitedDisplay : DigitalDisplayValues
{
    bool isLimited = false; // between the limits, of which one then is not 0
};

std::optional<forms::Verdict> validateDigitalDisplay(const forms::Typed &typed);

// "Digital Display Properties".
class DigitalDisplayDialog final : public TextDialog<DigitalDisplay, LimitedDisplay>
{
public:
    explicit DigitalDisplayDialog(DigitalDisplay &display);

protected:
    std::optional<forms::Verdict> validate(const forms::Typed &typed) const override
    {
        return validateDigitalDisplay(typed);
    }
    void set(LimitedDisplay &values) override;

private:
    void addFormat();
    void addLimits();
};

} // namespace controls
