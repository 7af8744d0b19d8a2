#pragma once

#include "forms/dialog_of.h"
#include "variables/catalogue.h"

namespace variables {

// The window that sets what is integrated or differentiated.
class FrmCalculusSetup final : public forms::DialogOf<VariableRecord>
{
public:
    FrmCalculusSetup(const VariableRecord &record, const forms::Context &context);
};

} // namespace variables
