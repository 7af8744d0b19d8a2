// The pictures of the control library, made at each start: of all families and of 30 custom entries, until
// the panel shows them. Limit: 300 ms.

#include "bench_support.h"
#include "surface/library_panel.h"

#include <QApplication>

namespace {

constexpr int Entries = 30;
constexpr double LimitMs = 300;

void defineEntries(surface::frmInterface &design)
{
    const platform::Stamp stamp = platform::systemStamp();
    surface::CustomLibrary library(design, design, stamp);
    const std::span<const controls::Family> families = controls::families();
    for (std::size_t i = 0; i < Entries; ++i) {
        const controls::Family &family = families[i % families.size()];
        design.addControl(family.type, {1500, 1500});
        library.define(surface::customKey(family, QStringLiteral("entry %1").arg(i)),
                       *design.controls().back());
    }
    design.library().loadControlTree();
}

void generateIcons(benchmark::State &state)
{
    bench::Program program;
    surface::frmInterface &design = program.design();
    defineEntries(design);
    platform::NoProgress silent;
    bench::Times times;
    while (state.KeepRunning()) {
        platform::wipeFiles(design.folders().cache, QStringLiteral("*.bmp"));
        state.SetIterationTime(times.measure([&] {
            design.GenerateIcons(silent);
            QApplication::processEvents();
        }));
    }
    bench::stateLimit(state, times, LimitMs);
}

BENCHMARK(generateIcons)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
