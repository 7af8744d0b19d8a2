#pragma once

#include "forms/choice.h"
#include "variables/catalogue.h"

namespace variables {

// The rows of a list of variables: those with this flag set, by their catalogue index, since several may have
// one name. A stored variable that is not offered any more is still there, at the end.
forms::Choices variableChoices(const VariableTable &table, bool VariableRecord::*offered, qint32 stored);

} // namespace variables
