#pragma once

#include "platform/locale.h"

namespace variables::expression {

// The text with one locale's marks turned into another's, by way of two marks of our own, so that a list
// separator that is turned to "," is not taken for a decimal mark.
inline QString withMarks(QString text, const platform::NumberLocale &from, const platform::NumberLocale &to)
{
    const QString decimal = QStringLiteral("<dec>");
    const QString list = QStringLiteral("<lst>");
    text.replace(from.decimalSeparator, decimal);
    text.replace(from.listSeparator, list);
    text.replace(decimal, to.decimalSeparator);
    return text.replace(list, to.listSeparator);
}

} // namespace variables::expression
