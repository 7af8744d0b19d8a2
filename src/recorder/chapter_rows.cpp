#include "recorder/chapter_rows.h"

#include "common/run_time_error.h"

namespace recorder {

using namespace Qt::StringLiterals;

ChapterRow emptyChapterRow(const QString &decimalMark)
{
    return {.value1 = {0, decimalMark}, .value2 = {0, decimalMark}};
}

ChapterRows chapterRows(const std::vector<ChapterCondition> &conditions, const QString &decimalMark)
{
    ChapterRows rows;
    for (const ChapterCondition &c : conditions) {
        rows.push_back({.type = c.type,
                        .value1 = {c.value1, decimalMark},
                        .sign1 = c.sign1,
                        .variable = c.variable,
                        .sign2 = c.sign2,
                        .value2 = {c.value2, decimalMark}});
    }
    return rows;
}

std::vector<ChapterCondition> chapterConditions(const ChapterRows &rows,
                                                const variables::VariableTable &table)
{
    std::vector<ChapterCondition> conditions;
    int number = 0;
    for (const ChapterRow &row : rows) {
        ++number;
        if (!row.type)
            continue;
        if (variableName(row.variable, table).isEmpty())
            throw common::RunTimeError(u"Row %1 has no variable"_s.arg(number));
        conditions.push_back(
            {*row.type, row.value1.value(), row.sign1, row.variable, row.sign2, row.value2.value()});
    }
    return conditions;
}

void tickAll(ChapterRows &rows)
{
    for (ChapterRow &row : rows)
        row.isTicked = row.type.has_value();
}

void removeTicked(ChapterRows &rows) { std::erase_if(rows, &ChapterRow::isTicked); }

QString chapterTypeText(int type) { return u"%1"_s.arg(type + 1, 2, 10, '0'_L1); }

QString signText(int sign) { return sign == 0 ? u"<"_s : u"<="_s; }

forms::Choices valuesUpTo(int last, QString (*textOf)(int))
{
    forms::Choices choices;
    for (int value = 0; value <= last; ++value)
        choices.push_back({textOf(value), value});
    return choices;
}

} // namespace recorder
