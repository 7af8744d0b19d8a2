#pragma once

#include "platform/locale.h"

#include <QByteArrayView>
#include <QString>

namespace variables::expression {

inline constexpr std::size_t LongestEquation = 65'536; // characters

// The equation text of a byte program, as the user of this locale would type it; the variable that owns the
// program appears as "u". False, with an empty text, when the program holds an unknown code or a slot that
// does not exist, when it has no end, and when a text would outgrow LongestEquation. Any bytes may be passed.
bool rebuildEquation(QByteArrayView program, int variableIndex, const platform::NumberLocale &locale,
                     QString &text);

} // namespace variables::expression
