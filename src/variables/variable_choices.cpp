#include "variables/variable_choices.h"

#include <algorithm>

namespace variables {

forms::Choices variableChoices(const VariableTable &table, bool VariableRecord::*offered, qint32 stored)
{
    forms::Choices choices;
    const auto add = [&](std::size_t index) {
        choices.push_back({table[index].DisplayName, static_cast<int>(index)});
    };
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (table[i].*offered)
            add(i);
    }
    const auto slot = static_cast<std::size_t>(stored);
    if (stored > 0 && slot < table.size() && !(table[slot].*offered))
        add(slot);
    return choices;
}

} // namespace variables
