#pragma once

#include "recorder/recorder_settings.h"
#include "variables/catalogue.h"

#include <array>

namespace layoutfile {

// Which variables a layout refers to, by index 0 to 8000.
class UsedVariables
{
public:
    void mark(qint32 variable); // indexes outside the catalogue are passed over
    bool isUsed(int variable) const { return m_used[static_cast<std::size_t>(variable)]; }

private:
    std::array<bool, variables::LastIndex + 1> m_used{};
};

// What the recorder settings refer to: chapter, start and stop conditions, and the variable that every layout
// stores.
void markSettings(UsedVariables &used, const recorder::RecorderSettings &settings);

// What the equations of used user variables name. One pass in index order: a user variable that only a later
// one names is not looked into.
void markReferences(UsedVariables &used, const variables::VariableTable &table);

} // namespace layoutfile
