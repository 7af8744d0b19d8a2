#include "variables/table_text.h"

namespace variables {

QString tableText(const QList<QStringList> &rows)
{
    QStringList lines;
    for (const QStringList &cells : rows)
        lines.append(cells.join(QLatin1Char('\t')));
    return lines.join(QLatin1String("\r\n"));
}

QList<QStringList> tableRows(const QString &text)
{
    QString lines = text;
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    if (lines.endsWith(QLatin1Char('\n')))
        lines.chop(1);
    QList<QStringList> rows;
    for (const QString &line : lines.split(QLatin1Char('\n')))
        rows.append(line.split(QLatin1Char('\t')));
    return rows;
}

} // namespace variables
