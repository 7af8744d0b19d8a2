#include "variables/editors/frm_calculus_setup.h"

#include "variables/calculus.h"

namespace variables {

FrmCalculusSetup::FrmCalculusSetup(const VariableRecord &record, const forms::Context &context)
    : DialogOf(QLatin1String(CalculusTitle), record, context)
{
    choice(&VariableRecord::calculus, {"CalcCombo", "Calculus &mode"}, forms::numbered(CalculusModes), 0);
    finish(forms::okAndCancel());
}

} // namespace variables
