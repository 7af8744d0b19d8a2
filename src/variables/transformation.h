#pragma once

#include "platform/locale.h"
#include "variables/catalogue.h"

#include <optional>

namespace variables {

// What the transformation editor does with a variable, without its window.

// The editor's fields, as typed.
struct TransformationForm
{
    bool custom = false; // the value comes from the equation, not from a standard unit
    int unit = -1;       // row of AllowTransformations; -1 where none is chosen
    QString equation;
    QString units;
};

inline const QString EquationError = QStringLiteral("Error in custom variable definition");

// User-defined variables always have an equation; only for them equations are generated.
constexpr bool hasOwnEquation(const VariableRecord &record)
{
    return record.VariableType == static_cast<qint32>(VariableGroup::UserDefined);
}

QString transformationTitle(const VariableRecord &record);

TransformationForm transformationOf(const VariableRecord &record);

// The texts of the units that may be chosen, row by row.
QStringList unitChoices(const VariableRecord &record, const UnitTable &units);
// "[kph]": the label of a chosen row.
QString unitLabel(const VariableRecord &record, int row, const UnitTable &units);

// The message that keeps the editor open. `index` is the variable's own.
std::optional<QString> validate(const TransformationForm &form, int index,
                                const platform::NumberLocale &locale);

// Writes a valid form into the record and gives it its display name.
void storeTransformation(const TransformationForm &form, VariableRecord &record, const UnitTable &units);

} // namespace variables
