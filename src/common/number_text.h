#pragma once

#include <QString>

namespace common {

// The shortest text that reads back to the same 32-bit float; from 1E+07 up and below 0.0001 with an
// exponent of at least two digits. `decimalMark` stands between whole and fraction.
QString shortestText(float value, const QString &decimalMark = QStringLiteral("."));

// The number with exactly `places` digits behind the mark, as the pattern "0.00" writes it: the shortest
// text, rounded with halves away from zero. What is no number has its shortest text.
QString fixedText(float value, int places, const QString &decimalMark = QStringLiteral("."));

// Leading-number reading: blanks are passed over, the longest prefix that is a number with "." counts, the
// rest is ignored; 0 when there is none. "12.5px" is 12.5, "abc" is 0.
double leadingNumber(const QString &text);

// Whether some locale writes this character between whole and fraction: ".", "," and the Arabic mark.
constexpr bool isDecimalMark(char32_t character)
{
    return character == U'.' || character == U',' || character == U'\u066B';
}

} // namespace common
