#pragma once

#include "controls/custom_dial/custom_dial.h"
#include "controls/property_dialog.h"

namespace controls {

std::optional<forms::Verdict> validateCustomDial(const forms::Typed &typed);

// "Custom Dial Properties", with a picture of the dial as it is typed.
class CustomDialDialog final : public PropertyDialog<CustomDial, CustomDialValues>
{
public:
    explicit CustomDialDialog(CustomDial &dial);

protected:
    std::optional<forms::Verdict> validate(const forms::Typed &typed) const override
    {
        return validateCustomDial(typed);
    }
    void set(CustomDialValues &values) override;

private:
    void addPlaceRows();
    void addScaleRows();
    void addTicRows();
    void addCaptionRows();
    void addAnnularRows();
    // Places the dial that these values describe, its face of an even size unless it is the one it has.
    CustomDialValues placedEvenly(CustomDialValues values) const;
    void showPreview();

    QLabel *m_preview;
};

} // namespace controls
