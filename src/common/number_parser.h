#pragma once

#include <QString>

namespace common {

// The locale-proof number parser: the decimal marks of all locales are alike, and so are the digits of all
// scripts. An exponent is read, letters and stray signs are passed over, an empty text is 0. At most 40
// characters count.
double parseNumber(const QString &text);

// The same for a text that has to be a number: sign, digits with at most one decimal mark, exponent. Throws
// RunTimeError for any other, an empty one among them.
double requireNumber(const QString &text);

// Whether a text box for numbers takes this character: digits of any script, ".", ",", "-", Backspace, Enter
// and the characters of the system's decimal mark.
bool isNumericKey(QChar key, const QString &decimalSeparator);

} // namespace common
