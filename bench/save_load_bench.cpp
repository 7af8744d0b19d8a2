// The Save command and the load of a layout, each as the user meets it: to the disk, until the canvas shows
// it. The peer of a save replaces a file of the same bytes with the same flushes; limit: 3 ms more, and 100
// ms for 4,000 controls. A load of 200 has 20 ms, one of 4,000 has 150 ms. Adding, loading, saving and
// previewing cost at most 1.5 times as much a control among 4,000 as among 400, and 4,000 gauges take at most
// 20 MB.

#include "bench_support.h"
#include "platform/file_replace.h"

#include <QApplication>

#include <malloc.h>

namespace {

using bench::Program;
using bench::Times;

constexpr int Few = 200;
constexpr int Some = 400;
constexpr int Many = 4000;
constexpr double MoreThanWritingMs = 3;
constexpr double SaveManyMs = 100;
constexpr double LoadFewMs = 20;
constexpr double LoadManyMs = 150;
constexpr double MostGrowth = 1.5;
constexpr double GaugesMb = 20;

void saveLayout(benchmark::State &state)
{
    const int controls = static_cast<int>(state.range(0));
    Program program;
    program.addControls(controls);
    const auto [own, peer] = bench::measureSaves(
        state, program, [&](const QByteArray &bytes) { platform::replaceFile(program.savePath(), bytes); });
    const double limit = controls == Few ? peer.median() * 1e3 + MoreThanWritingMs : SaveManyMs;
    bench::stateLimit(state, own, limit);
    bench::statePeer(state, own, peer);
}

void loadLayout(benchmark::State &state)
{
    const int controls = static_cast<int>(state.range(0));
    Program writer;
    writer.addControls(controls);
    bench::stateLimit(state, bench::measureLoads(state, writer, [] {}).own,
                      controls == Few ? LoadFewMs : LoadManyMs);
}

// What one control costs in each task.
struct Costs
{
    Times add;
    Times load;
    Times save;
    Times preview;

    void measure(int controls)
    {
        Program program;
        add.add(Times::timed([&] { program.addControls(controls); }) / controls);
        save.add(Times::timed([&] { program.files().mnuSaveConfig(); }) / controls);
        preview.add(Times::timed([&] { program.design().renderPreview(); }) / controls);
        Program reader;
        load.add(Times::timed([&] { reader.files().load(program.savePath()); }) / controls);
    }
};

void costOfOneControl(benchmark::State &state)
{
    Costs some;
    Costs many;
    while (state.KeepRunning()) {
        state.SetIterationTime(Times::timed([&] {
            some.measure(Some);
            many.measure(Many);
        }));
    }
    double worst = 0;
    const auto compare = [&](const char *task, Times Costs::*times) {
        const double growth = (many.*times).median() / (some.*times).median();
        state.counters[task] = growth;
        worst = std::max(worst, growth);
    };
    compare("add", &Costs::add);
    compare("load", &Costs::load);
    compare("save", &Costs::save);
    compare("preview", &Costs::preview);
    state.SetLabel(worst <= MostGrowth ? "within the limit" : "OVER THE LIMIT");
}

double heapMb() { return static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd) / (1024 * 1024); }

void memoryOfGauges(benchmark::State &state)
{
    double taken = 0;
    while (state.KeepRunning()) {
        Program program;
        const double before = heapMb();
        for (int i = 0; i < Many; ++i)
            program.design().addControl(controls::ControlType::Gauge, {i % 600 * 15.0, i % 400 * 15.0});
        QApplication::processEvents();
        taken = heapMb() - before;
    }
    state.counters["mb"] = taken;
    state.SetLabel(taken <= GaugesMb ? "within the limit" : "OVER THE LIMIT");
}

BENCHMARK(saveLayout)->Arg(Few)->Arg(Many)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(loadLayout)->Arg(Few)->Arg(Many)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(20);
BENCHMARK(costOfOneControl)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(memoryOfGauges)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
