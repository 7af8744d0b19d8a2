#pragma once

#include "platform/locale.h"

#include <QByteArray>
#include <QString>

namespace variables::expression {

// The revision of the word format that parser and evaluator share; from 3 on it has all operations and
// functions of opcodes.h.
int expressionLayerVersion();

// Turns equation text into the recorder's byte program. `variableIndex` is the catalogue index of the
// variable that owns the equation: x and u in the text stand for its raw value. False, with `bytes`
// untouched, when the text is no equation (parser.h has the grammar), when a run with all variables 0 fails,
// or when the program is too long. Any text may be passed.
bool compile(const QString &text, QByteArray &bytes, int variableIndex, const platform::NumberLocale &locale);

} // namespace variables::expression
