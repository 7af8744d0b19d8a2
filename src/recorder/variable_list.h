#pragma once

#include "forms/choice.h"
#include "variables/catalogue.h"

namespace recorder {

// Empty for a variable that is not in the catalogue.
QString variableName(qint32 variable, const variables::VariableTable &table);

// What conditions and gears may refer to: the enabled variables, and the stored one if it is in the
// catalogue.
forms::Choices enabledVariables(const variables::VariableTable &table, qint32 stored);

} // namespace recorder
