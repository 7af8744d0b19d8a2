#include "variables/editors/variable_editors.h"

#include "variables/editors/frm_calculus_setup.h"
#include "variables/editors/frm_filter_design.h"
#include "variables/editors/frm_variable_transformation.h"

namespace variables {

VariableRecord *VariableEditors::recordAt(int index)
{
    VariableTable &staging = m_catalogue.staging;
    return index > 0 && index < staging.size() ? &staging[index] : nullptr;
}

bool VariableEditors::editTransformation(int index, QWidget *parent)
{
    if (!recordAt(index))
        return false;
    return frmVariableTransformation(index, m_catalogue, m_generated, within(parent)).run();
}

bool VariableEditors::editFilter(int index, QWidget *parent)
{
    VariableRecord *record = recordAt(index);
    if (!record)
        return false;
    const auto filter = frmFilterDesign(record->BaseName, filterOf(*record), within(parent)).run();
    if (!filter)
        return false;
    const VariableRecord before = *record;
    storeFilter(*filter, *record);
    return *record != before;
}

bool VariableEditors::editCalculus(int index, QWidget *parent)
{
    VariableRecord *record = recordAt(index);
    if (!record)
        return false;
    const auto edited = FrmCalculusSetup(*record, within(parent)).run();
    if (!edited || *edited == *record)
        return false;
    *record = *edited;
    return true;
}

} // namespace variables
