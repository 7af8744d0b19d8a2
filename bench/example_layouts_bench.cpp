// Opening the layouts that are shipped, each one in a program of its own, until it is painted. Limit: 100 ms
// for each.

#include "bench_support.h"

#include <QApplication>
#include <QDir>

namespace {

constexpr double LimitMs = 100;

void openExample(benchmark::State &state, const QString &path)
{
    bench::Times times;
    while (state.KeepRunning()) {
        bench::Program program;
        state.SetIterationTime(times.measure([&] {
            program.files().load(path);
            QApplication::processEvents(); // what was loaded is painted
        }));
        if (program.design().controls().isEmpty())
            state.SkipWithError("controls are missing");
    }
    bench::stateLimit(state, times, LimitMs);
}

const bool Registered = [] {
    const QDir examples(QStringLiteral(MORVEL_PROGRAM_DIR "/Example Layouts"));
    for (const QFileInfo &layout : examples.entryInfoList({QStringLiteral("*.VGL")})) {
        benchmark::RegisterBenchmark(
            qPrintable("openExample/" + layout.completeBaseName()),
            [path = layout.filePath()](benchmark::State &state) { openExample(state, path); })
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond)
            ->Iterations(10);
    }
    return !examples.isEmpty();
}();

} // namespace
