#pragma once

#include <QString>

namespace platform {

// The user's decimal mark and the mark between the arguments of a list; neither is ever empty.
struct NumberLocale
{
    QString decimalSeparator = QStringLiteral(".");
    QString listSeparator = QStringLiteral(",");
};

NumberLocale userNumberLocale();

} // namespace platform
