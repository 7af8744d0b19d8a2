#pragma once

#include "recorder/number_cell.h"
#include "recorder/recorder_settings.h"
#include "recorder/variable_list.h"

#include <optional>

namespace recorder {

// A condition as it stands in its grid, where rows may be empty and cells may hold any text.
struct ChapterRow
{
    bool isTicked = false;
    std::optional<quint8> type = {}; // shown number less 1; nothing in an empty row
    NumberCell value1;
    quint8 sign1 = 0;
    qint32 variable = 0; // 0 for none yet
    quint8 sign2 = 0;
    NumberCell value2;
};
using ChapterRows = std::vector<ChapterRow>;

// An empty row: between 0 and 0 as soon as it gets a type.
ChapterRow emptyChapterRow(const QString &decimalMark);
ChapterRows chapterRows(const std::vector<ChapterCondition> &conditions, const QString &decimalMark);

// The conditions that the rows stand for; empty rows are skipped. Throws RunTimeError where a value is no
// number, or the variable is not in the catalogue.
std::vector<ChapterCondition> chapterConditions(const ChapterRows &rows,
                                                const variables::VariableTable &table);

// All filled rows.
void tickAll(ChapterRows &rows);
// The rows below close the gaps.
void removeTicked(ChapterRows &rows);

// "01" to "10".
QString chapterTypeText(int type);
QString signText(int sign);
// The rows of a list of the values 0 to `last`.
forms::Choices valuesUpTo(int last, QString (*textOf)(int));

} // namespace recorder
