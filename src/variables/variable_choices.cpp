#include "variables/variable_choices.h"

namespace variables {

forms::Choices variableChoices(const VariableTable &table, bool VariableRecord::*offered, qint32 stored)
{
    forms::Choices choices;
    const auto add = [&](qsizetype index) {
        choices.push_back({table[index].DisplayName, static_cast<int>(index)});
    };
    for (qsizetype i = 0; i < table.size(); ++i) {
        if (table[i].*offered)
            add(i);
    }
    if (stored > 0 && stored < table.size() && !(table[stored].*offered))
        add(stored);
    return choices;
}

} // namespace variables
