#include "make_layouts/recorder_row.h"

#include "make_data/message_builder.h"
#include "recorder/bit_rate.h"

#include <algorithm>

namespace make_layouts {

namespace {

using recorder::RecordingTrigger;

constexpr int LongestTime = 255;

const QStringList Patterns{QStringLiteral("I"), QStringLiteral("IP"), QStringLiteral("IPB")};
const QStringList TriggerSigns{QStringLiteral("Not Active"), QStringLiteral("<"), QStringLiteral(">")};
const QStringList ChapterSigns{QStringLiteral("<"), QStringLiteral("<=")};

quint8 placeIn(const QStringList &list, RowReader &row, qsizetype cell)
{
    const qsizetype place = list.indexOf(row.text(cell));
    if (place < 0)
        row.complain(QStringLiteral("\"%1\" is none of \"%2\"")
                         .arg(row.text(cell), list.join(QStringLiteral("\", \""))));
    return static_cast<quint8>(qMax<qsizetype>(place, 0));
}

quint8 byteFrom(RowReader &row, qsizetype cell, int lowest, int highest)
{
    return static_cast<quint8>(row.whole(row.text(cell), lowest, highest).value_or(lowest));
}

void takeBitRate(RowReader &row, Workbench &bench)
{
    bench.settings.CurrentBitRate = byteFrom(row, 1, recorder::LowestBitRate, recorder::HighestBitRate);
}

void takePattern(RowReader &row, Workbench &bench)
{
    bench.settings.encodePattern = static_cast<recorder::EncodePattern>(placeIn(Patterns, row, 1));
}

RecordingTrigger triggerOf(RowReader &row, const Workbench &bench)
{
    return {variableNamed(row, row.text(1), bench.catalogue).value_or(0), placeIn(TriggerSigns, row, 2),
            row.number(row.text(3)), byteFrom(row, 4, 0, LongestTime)};
}

void takeStart(RowReader &row, Workbench &bench) { bench.settings.autoStart = triggerOf(row, bench); }

void takeStop(RowReader &row, Workbench &bench) { bench.settings.autoStop = triggerOf(row, bench); }

// Types are shown from 1 and stored from 0.
quint8 chapterType(RowReader &row)
{
    return static_cast<quint8>(byteFrom(row, 1, 1, recorder::LastChapterType + 1) - 1);
}

void takeChapter(RowReader &row, Workbench &bench)
{
    bench.settings.ChapterList.push_back({chapterType(row), row.number(row.text(2)),
                                          placeIn(ChapterSigns, row, 3),
                                          variableNamed(row, row.text(4), bench.catalogue).value_or(0),
                                          placeIn(ChapterSigns, row, 5), row.number(row.text(6))});
}

void takeLapChapters(RowReader &row, Workbench &bench)
{
    bench.settings.LapChapterActive = 1;
    bench.settings.LapChapterType = chapterType(row);
}

// The last row says how many gears there are.
void takeGear(RowReader &row, Workbench &bench)
{
    bench.settings.GearTable.resize(byteFrom(row, 1, 1, static_cast<int>(recorder::MostGears)));
    bench.settings.GearTable.back() = {row.number(row.text(2)), row.number(row.text(3))};
}

void takePulses(RowReader &row, Workbench &bench)
{
    bench.settings.PulsesPerRevolution = row.number(row.text(1));
}

void takeMessage(RowReader &row, Workbench &bench)
{
    auto &table = bench.settings.MessageTable;
    const auto entry = std::ranges::find(table, row.text(1), &recorder::MessageEntry::name);
    if (entry == table.end()) {
        row.complain(QStringLiteral("there is no message \"%1\"").arg(row.text(1)));
        return;
    }
    entry->storageRate = make_data::rateCode(row, row.text(2), entry->kind);
    entry->outputRate = make_data::rateCode(row, row.text(3), entry->kind);
}

void takeUnit(RowReader &row, Workbench &bench)
{
    const auto variable = variableNamed(row, row.text(1), bench.catalogue);
    if (!variable)
        return;
    variables::VariableRecord &record = bench.catalogue.live[*variable];
    if (!record.AllowTransformations.contains(row.text(2)))
        row.complain(QStringLiteral("\"%1\" is no unit of this variable").arg(row.text(2)));
    record.ApplyTransformation = row.text(2);
    variables::SetupVariables(bench.catalogue);
}

struct Word
{
    const char *name;
    qsizetype cells;
    void (*take)(RowReader &row, Workbench &bench);
};

constexpr Word Words[] = {
    {"bit rate", 2, takeBitRate},
    {"encode pattern", 2, takePattern},
    {"auto start", 5, takeStart},     // variable, sign, value, seconds
    {"auto stop", 5, takeStop},       // the same
    {"chapter mark", 7, takeChapter}, // type, value, sign, variable, sign, value
    {"lap chapters", 2, takeLapChapters},
    {"gear", 4, takeGear}, // number, lower and upper limit
    {"pulses per revolution", 2, takePulses},
    {"message", 4, takeMessage}, // name, stored at, sent at
    {"unit", 3, takeUnit},       // variable, unit
};

} // namespace

void takeSetting(RowReader &row, Workbench &bench)
{
    const auto word =
        std::ranges::find_if(Words, [&](const Word &w) { return row.text(0) == QLatin1String(w.name); });
    if (word == std::end(Words))
        row.complain(QStringLiteral("there is no setting \"%1\"").arg(row.text(0)));
    else if (row.hasCells(word->cells))
        word->take(row, bench);
}

} // namespace make_layouts
