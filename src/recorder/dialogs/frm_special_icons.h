#pragma once

#include "forms/dialog_of.h"
#include "forms/picture_field.h"
#include "recorder/recorder_settings.h"

namespace recorder {

// The icon with the picture it is made of.
struct IconOfFile : SpecialIcon
{
    forms::ChosenPicture source;
};

// `typed` holds the size of the picture.
std::optional<forms::Verdict> validateSpecialIcon(const forms::Typed &typed);

// "Special Icons": sets the recorder's one icon.
class frmSpecialIcons final : public forms::DialogOf<IconOfFile>
{
public:
    frmSpecialIcons(SpecialIcon &icon, const forms::Context &context);

protected:
    std::optional<forms::Verdict> validate(const forms::Typed &typed) const override
    {
        return validateSpecialIcon(typed);
    }
    void set(IconOfFile &values) override;

private:
    SpecialIcon &m_icon;
};

} // namespace recorder
