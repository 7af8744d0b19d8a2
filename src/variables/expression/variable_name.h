#pragma once

#include <QList>
#include <QString>

#include <string_view>

namespace variables::expression {

// How equations name a variable, in small or capital letters: the prefix and its catalogue index in four
// digits.

inline constexpr std::string_view VariablePrefix = "var_";
inline constexpr int IndexDigits = 4;

// var_0042. `index` is 0 to 9999.
QString variableName(int index);

// The indices that an equation names, in its order; 0 stands for a name without a number.
QList<int> namedVariables(const QString &equation);

} // namespace variables::expression
