#pragma once

#include "platform/prompts.h"
#include "variables/catalogue.h"

#include <QString>

namespace surface {

// A press on a line below a variable: its key taken apart.
struct VariableLine
{
    QString role;
    int index = 0; // catalogue index
};

// Nothing for group nodes and for keys that name no slot of the catalogue.
std::optional<VariableLine> variableLine(const QString &key);

// The in-place edits: each asks for a new value and stores it in the record; an empty answer leaves it. So
// does a maximum rate of change that begins with no number. True when the record was changed.
bool editMaximumRoc(variables::VariableRecord &record, platform::Prompts &prompts,
                    const QString &decimalMark);
bool editName(variables::VariableRecord &record, platform::Prompts &prompts);
bool editSmoothing(variables::VariableRecord &record, platform::Prompts &prompts, const QString &decimalMark);

} // namespace surface
