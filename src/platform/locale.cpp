#include "platform/locale.h"

#include <QLocale>

namespace platform {

NumberLocale userNumberLocale()
{
    NumberLocale locale;
    const QString mark = QLocale::system().decimalPoint().remove(QChar(0)).trimmed();
    if (!mark.isEmpty())
        locale.decimalSeparator = mark;
    if (locale.decimalSeparator == QLatin1String(","))
        locale.listSeparator = QStringLiteral(";");
    return locale;
}

} // namespace platform
