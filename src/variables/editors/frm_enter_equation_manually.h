#pragma once

#include "forms/dialog_of.h"
#include "variables/units.h"

namespace variables {

// The window in which the coefficients of a polynomial are typed.
class FrmEnterEquationManually final : public forms::DialogOf<Coefficients>
{
public:
    FrmEnterEquationManually(const Coefficients &initial, const forms::Context &context);
};

} // namespace variables
