#include "variables/transformation_entries.h"

#include "variables/expression/variable_name.h"

namespace variables {

std::vector<VariableEntry> variableEntries(const VariableTable &table)
{
    std::vector<VariableEntry> entries;
    for (qsizetype i = 0; i < table.size(); ++i) {
        if (table[i].Enabled)
            entries.push_back(
                {expression::variableName(static_cast<int>(i)).toUpper(), table[i].DisplayName});
    }
    return entries;
}

} // namespace variables
