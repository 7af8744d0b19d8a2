#include "variables/table_text.h"

namespace variables {

using namespace Qt::StringLiterals;

QString tableText(const QList<QStringList> &rows)
{
    QStringList lines;
    for (const QStringList &cells : rows)
        lines.append(cells.join('\t'_L1));
    return lines.join("\r\n"_L1);
}

QList<QStringList> tableRows(const QString &text)
{
    QString lines = text;
    lines.replace("\r\n"_L1, "\n"_L1).replace('\r'_L1, '\n'_L1);
    if (lines.endsWith('\n'_L1))
        lines.chop(1);
    QList<QStringList> rows;
    for (const QString &line : lines.split('\n'_L1))
        rows.append(line.split('\t'_L1));
    return rows;
}

} // namespace variables
