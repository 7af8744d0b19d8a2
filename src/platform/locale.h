#pragma once

#include <QString>

namespace platform {

// The user's decimal mark and the mark between the arguments of a list; neither is ever empty.
struct NumberLocale
{
    QString decimalSeparator = QStringLiteral(".");
    QString listSeparator = QStringLiteral(",");
};

// The marks of a locale with this decimal mark. One that number fields do not read (common::isDecimalMark),
// as a user can set it on some desktops, counts as ".".
NumberLocale numberLocale(const QString &decimalMark);

NumberLocale userNumberLocale();

} // namespace platform
