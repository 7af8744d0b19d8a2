#pragma once

#include "platform/locale.h"

#include <QString>

#include <string>

namespace variables::expression {

// An equation as the user typed it, made ready for the parser: lower-case between two blanks, "." and "," in
// place of the locale's marks, the names x and u replaced by the variable that owns the equation, the vehicle
// constants (CdA, Roll, Mass, CAR_1 to CAR_10) by 0. Characters outside ASCII, which no equation can hold,
// become "?".
std::string StringBuilding(const QString &text, int variableIndex, const platform::NumberLocale &locale);

} // namespace variables::expression
