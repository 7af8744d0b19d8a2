#pragma once

#include <QString>

namespace variables {

// The locale-proof number parser: "," and "." are both the decimal mark, an exponent is read, letters and
// stray signs are passed over, an empty text is 0. At most 40 characters count.
double parseNumber(const QString &text);

// Whether a text box for numbers takes this character: digits, ".", ",", "-", Backspace, Enter and the
// characters of the system's decimal mark.
bool isNumericKey(QChar key, const QString &decimalSeparator);

} // namespace variables
