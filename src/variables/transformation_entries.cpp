#include "variables/transformation_entries.h"

namespace variables {

std::vector<VariableEntry> variableEntries(const VariableTable &table)
{
    std::vector<VariableEntry> entries;
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (table[i].Enabled)
            entries.push_back(
                {QStringLiteral("VAR_%1").arg(i, 4, 10, QLatin1Char('0')), table[i].DisplayName});
    }
    return entries;
}

} // namespace variables
