#pragma once

#include "forms/dialog_of.h"
#include "forms/picture_field.h"
#include "surface/frm_interface.h"

namespace shell {

struct Options
{
    surface::Grid grid;
    forms::ChosenPicture pal, ntsc;
};

std::optional<forms::Verdict> validateOptions(const forms::Typed &typed);

// "Options": the grid of the canvas and its backgrounds. What Ok sets is seen at once.
class frmOptions final : public forms::DialogOf<Options>
{
public:
    frmOptions(surface::frmInterface &design, const forms::Context &context);

protected:
    std::optional<forms::Verdict> validate(const forms::Typed &typed) const override
    {
        return validateOptions(typed);
    }
    void set(Options &options) override;

private:
    // The file of a standard's picture, and below it the picture with the button that browses for another.
    void addBackground(recorder::VideoStandard standard, forms::ChosenPicture Options::*member,
                       const forms::RowText &file, const forms::RowText &picture, const char *previewName);

    surface::frmInterface &m_design;
};

} // namespace shell
