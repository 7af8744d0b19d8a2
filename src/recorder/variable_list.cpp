#include "recorder/variable_list.h"

#include "variables/variable_choices.h"

namespace recorder {

QString variableName(qint32 variable, const variables::VariableTable &table)
{
    const bool isSlot = variable > 0 && variable < variables::NotFound && variable < table.size();
    return isSlot && table[variable].IndexNumber != 0 ? table[variable].DisplayName : QString();
}

forms::Choices enabledVariables(const variables::VariableTable &table, qint32 stored)
{
    return variables::variableChoices(table, &variables::VariableRecord::Enabled,
                                      variableName(stored, table).isEmpty() ? 0 : stored);
}

} // namespace recorder
