// The Save command and the load of a layout with 200 controls, each as the user meets it: with its progress
// window, to the disk, until the canvas shows it. Limit: 100 ms each; a load of 4,000 has 150 ms.

#include "bench_support.h"

#include <QApplication>

namespace {

using bench::Program;
using bench::Times;

constexpr int Controls = 200;
constexpr double LimitMs = 100;
constexpr int ManyControls = 4000;
constexpr double ManyLimitMs = 150;

void saveLayout(benchmark::State &state)
{
    Program program;
    program.addControls(Controls);
    Times times;
    for (auto _ : state)
        state.SetIterationTime(times.measure([&] { program.files().mnuSaveConfig(); }));
    bench::stateLimit(state, times, LimitMs);
    state.counters["bytes"] = static_cast<double>(QFileInfo(program.savePath()).size());
}

void loadLayout(benchmark::State &state)
{
    const int controls = static_cast<int>(state.range(0));
    Program writer;
    writer.addControls(controls);
    writer.files().mnuSaveConfig();
    Times times;
    for (auto _ : state) {
        Program reader;
        state.SetIterationTime(times.measure([&] {
            reader.files().load(writer.savePath());
            QApplication::processEvents(); // what was loaded is painted
        }));
        if (reader.design().controls().size() != controls)
            state.SkipWithError("controls are missing");
    }
    bench::stateLimit(state, times, controls > Controls ? ManyLimitMs : LimitMs);
}

BENCHMARK(saveLayout)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(loadLayout)
    ->Arg(Controls)
    ->Arg(ManyControls)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(20);

} // namespace
