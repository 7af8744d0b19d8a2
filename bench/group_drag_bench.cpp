// One step of a drag of a group of 50 among 200 controls, live: a movement of the mouse and the repaint that
// follows. Limit: 2 ms.

#include "bench_support.h"
#include "surface/canvas.h"

namespace {

constexpr int All = 200;
constexpr double LimitMs = 2;

// A block of ten columns and five rows at the top left, which has room to move.
QList<controls::OverlayControl *> block(const QList<controls::OverlayControl *> &all)
{
    QList<controls::OverlayControl *> block;
    for (qsizetype i = 0; i < 100; ++i) {
        if (i % 20 < 10)
            block.append(all[i]);
    }
    return block;
}

void groupDragStep(benchmark::State &state)
{
    bench::Program program;
    program.addControls(All);
    const auto group = block(program.design().controls());
    auto &canvas = *program.design().findChild<surface::Canvas *>();
    for (controls::OverlayControl *member : group)
        member->SetControlGroup(1);
    canvas.choose(*group.first());
    bench::startDrag(canvas, canvas, group.first()->outerRect().topLeft());

    bench::PaintCounter counter(canvas);
    bench::Times times;
    int step = 0;
    while (state.KeepRunning()) {
        const QPoint place = bench::wayPoint(++step) / 2;
        state.SetIterationTime(times.measure([&] { bench::dragTo(canvas, canvas, place); }));
    }
    counter.expect(step, state);
    bench::stateLimit(state, times, LimitMs);
}

BENCHMARK(groupDragStep)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
