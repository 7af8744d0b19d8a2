#include "make_data/text_table.h"

#include "common/code_page.h"

#include <QStringDecoder>

#include <cmath>

namespace make_data {

namespace {

Row toRow(const QString &text, int line)
{
    if (text.startsWith(QLatin1Char('[')) && text.endsWith(QLatin1Char(']')))
        return {line, true, {text.sliced(1, text.size() - 2).trimmed()}};
    return {line, false, cellsOf(text)};
}

} // namespace

QStringList cellsOf(const QString &line)
{
    QStringList cells = line.split(QLatin1Char('|'));
    for (QString &cell : cells)
        cell = cell.trimmed();
    return cells;
}

void Problems::add(const QString &path, int line, const QString &message)
{
    m_lines.append(QStringLiteral("%1:%2: %3").arg(path, QString::number(line), message));
}

TextTable parseTable(const QString &path, const QByteArray &bytes, Problems &problems)
{
    TextTable table{path, {}};
    int line = 0;
    for (const QByteArray &encoded : bytes.split('\n')) {
        ++line;
        QStringDecoder decoder(QStringDecoder::Utf8);
        const QString text = QString(decoder(encoded)).trimmed();
        if (text.isEmpty() || text.startsWith(QLatin1Char('#')))
            continue;
        if (decoder.hasError())
            problems.add(path, line, QStringLiteral("not UTF-8"));
        else if (common::fromCodePage(common::toCodePage(text)) != text)
            problems.add(path, line,
                         QStringLiteral("a character is not in the code page of the product's files"));
        table.rows.push_back(toRow(text, line));
    }
    return table;
}

bool RowReader::hasCells(qsizetype count)
{
    const qsizetype found = m_row.isHeading ? 0 : m_row.cells.size();
    if (found != count)
        complain(QStringLiteral("%1 cells expected, %2 found").arg(count).arg(found));
    return found == count;
}

float RowReader::number(const QString &text)
{
    bool isNumber = false;
    const float value = text.toFloat(&isNumber);
    if (!isNumber || !std::isfinite(value))
        complain(QStringLiteral("\"%1\" is not a number").arg(text));
    return value;
}

std::optional<int> RowReader::whole(const QString &text, int lowest, int highest)
{
    bool isNumber = false;
    const int value = text.toInt(&isNumber);
    if (isNumber && value >= lowest && value <= highest)
        return value;
    complain(QStringLiteral("\"%1\" is not a whole number from %2 to %3").arg(text).arg(lowest).arg(highest));
    return {};
}

} // namespace make_data
