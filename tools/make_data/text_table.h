#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace make_data {

// What is wrong with the authored files, one "file:line: message" each.
class Problems
{
public:
    void add(const QString &path, int line, const QString &message);
    bool none() const { return m_lines.isEmpty(); }
    const QStringList &lines() const { return m_lines; }

private:
    QStringList m_lines;
};

// What stands between the "|" of a line, without blanks at the ends.
QStringList cellsOf(const QString &line);

// A line of cells between "|", or a heading: one cell, the text between the square brackets.
struct Row
{
    int line = 0; // from 1
    bool isHeading = false;
    QStringList cells;
};

struct TextTable
{
    QString path; // for messages only
    std::vector<Row> rows;
};

// UTF-8 text; empty lines and lines that begin with "#" are passed over. Rows that the product's 8-bit files
// cannot hold are problems.
TextTable parseTable(const QString &path, const QByteArray &bytes, Problems &problems);

// A row on its way into a record. Whatever is wrong with it is reported with the row's file and line.
class RowReader
{
public:
    RowReader(const TextTable &table, const Row &row, Problems &problems)
        : m_path(table.path), m_row(row), m_problems(problems)
    {
    }

    int line() const { return m_row.line; }
    bool isHeading() const { return m_row.isHeading; }
    // Reports any other number of cells. The cells may be asked for only when this is true.
    bool hasCells(qsizetype count);
    const QString &text(qsizetype cell) const { return m_row.cells[cell]; }
    float number(const QString &text);
    // Nothing when the text is no whole number from `lowest` to `highest`.
    std::optional<int> whole(const QString &text, int lowest, int highest);
    void complain(const QString &message) { m_problems.add(m_path, m_row.line, message); }

private:
    const QString &m_path;
    const Row &m_row;
    Problems &m_problems;
};

} // namespace make_data
