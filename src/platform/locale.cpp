#include "platform/locale.h"

#include "common/number_text.h"

#include <QLocale>

namespace platform {

NumberLocale numberLocale(const QString &decimalMark)
{
    NumberLocale locale;
    const QString mark = QString(decimalMark).remove(QChar(0)).trimmed();
    if (mark.size() == 1 && common::isDecimalMark(mark.front().unicode()))
        locale.decimalSeparator = mark;
    if (locale.decimalSeparator == QLatin1String(","))
        locale.listSeparator = QStringLiteral(";");
    return locale;
}

NumberLocale userNumberLocale() { return numberLocale(QLocale::system().decimalPoint()); }

} // namespace platform
