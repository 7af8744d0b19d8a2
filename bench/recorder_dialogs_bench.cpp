// Opening each of the dialogs of the recorder with all variables that it knows and 256 messages, until it is
// painted, limit 30 ms. Beside the dialog of the messages a plain table with the same rows.

#include "bench_support.h"
#include "recorder/dialogs/frm_auto_chapter_mark.h"
#include "recorder/dialogs/frm_frequency.h"
#include "recorder/dialogs/frm_gear_display.h"
#include "recorder/dialogs/frm_gear_ratios.h"
#include "recorder/dialogs/frm_manual_bit_rate.h"
#include "recorder/dialogs/frm_rpm.h"
#include "recorder/dialogs/frm_start_stop_rec.h"
#include "recorder/message_rates.h"

#include <QApplication>
#include <QTableWidget>

namespace {

constexpr double OpenLimitMs = 30;

// What the dialogs work on.
struct World
{
    World()
    {
        variables::Catalogue catalogue;
        for (int index = 1; index < variables::LastIndex; ++index) {
            variables::VariableRecord &record = catalogue.live[index];
            record.IndexNumber = index;
            record.BaseName = QStringLiteral("Variable of the number %1").arg(index);
            record.Enabled = record.Available = variables::isPermitted(index);
        }
        variables::SetupVariables(catalogue);
        table = catalogue.live;
        for (std::size_t i = 0; i < settings.MessageTable.size(); ++i) {
            recorder::MessageEntry &entry = settings.MessageTable[i];
            entry.number = static_cast<quint8>(i);
            entry.name = QStringLiteral("Message of the number %1").arg(i);
        }
        settings.ChapterList.assign(100, {1, 2, 0, 3, 0, 4});
    }

    QTemporaryDir folder;
    bench::YesPrompts prompts{{}};
    forms::Context context{prompts, {}, nullptr};
    variables::VariableTable table;
    recorder::RecorderSettings settings;
};

void showPainted(QWidget &window)
{
    window.show();
    QApplication::processEvents();
    window.repaint();
}

// `open` makes and shows a dialog.
template <typename Open>
void measureOpening(benchmark::State &state, Open open)
{
    World world;
    bench::Times times;
    while (state.KeepRunning())
        state.SetIterationTime(times.measure([&] { open(world); }));
    bench::stateLimit(state, times, OpenLimitMs);
}

void openFrequency(World &w)
{
    recorder::frmFrequency dialog(w.settings.MessageTable, w.folder.filePath("messages"), w.context);
    showPainted(dialog);
}

void plainTable(const recorder::MessageTable &messages)
{
    QTableWidget table(static_cast<int>(messages.size()), 4);
    int row = 0;
    for (const recorder::MessageEntry &entry : messages) {
        const QStringList texts{QString::number(entry.number), entry.name,
                                recorder::rateText(entry.storageRate, entry.kind),
                                recorder::rateText(entry.outputRate, entry.kind)};
        for (int column = 0; column < texts.size(); ++column)
            table.setItem(row, column, new QTableWidgetItem(texts[column]));
        ++row;
    }
    showPainted(table);
}

void messageFrequency(benchmark::State &state)
{
    World world;
    bench::Times own;
    bench::Times peer;
    while (state.KeepRunning()) {
        state.SetIterationTime(own.measure([&] { openFrequency(world); }));
        peer.measure([&] { plainTable(world.settings.MessageTable); });
    }
    bench::stateLimit(state, own, OpenLimitMs);
    bench::statePeer(state, own, peer);
}

void bitRate(benchmark::State &state)
{
    measureOpening(state, [](World &w) {
        recorder::frmManualBitRate dialog(w.settings.CurrentBitRate, w.context);
        showPainted(dialog);
    });
}

void startStop(benchmark::State &state)
{
    measureOpening(state, [](World &w) {
        recorder::frmStartStopRec dialog(w.settings.autoStart, w.settings.autoStop, w.table, w.context);
        showPainted(dialog);
    });
}

void chapterMarks(benchmark::State &state)
{
    measureOpening(state, [](World &w) {
        recorder::frmAutoChapterMark dialog(w.settings, w.table, w.context);
        showPainted(dialog);
    });
}

void gearDisplay(benchmark::State &state)
{
    measureOpening(state, [](World &w) {
        recorder::frmGearDisplay dialog(w.settings, w.table, w.context);
        showPainted(dialog);
    });
}

void gearRatios(benchmark::State &state)
{
    measureOpening(state, [](World &w) {
        recorder::frmGearRatios dialog({{3, 2, 1.5, 1, 0.75, 0.5, 0.25}, 4, 2}, recorder::MostGears,
                                       w.context);
        showPainted(dialog);
    });
}

void pulses(benchmark::State &state)
{
    measureOpening(state, [](World &w) {
        recorder::frmRPM dialog(w.settings.PulsesPerRevolution, w.context);
        showPainted(dialog);
    });
}

BENCHMARK(messageFrequency)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(bitRate)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(startStop)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(chapterMarks)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(gearDisplay)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(gearRatios)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(pulses)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
