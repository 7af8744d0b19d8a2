// The face of a custom dial of 240 x 240 pixels, limit 3 ms, and a dial of about that size that follows a
// grip on the canvas: a movement of the mouse and the repaint that follows, limit 8 ms.

#include "bench_support.h"
#include "graphics/dial_face.h"
#include "surface/canvas.h"

#include <QApplication>
#include <QMouseEvent>

namespace {

constexpr double FaceLimitMs = 3;
constexpr double StepLimitMs = 8;

void dialFace(benchmark::State &state)
{
    const graphics::DialLook look;
    const graphics::OutlineFont font(look.face(), look.style(), QStringLiteral(MORVEL_PROGRAM_DIR "/fonts/"));
    bench::Times times;
    for (auto _ : state) {
        state.SetIterationTime(times.measure([&] {
            benchmark::DoNotOptimize(graphics::dialFace(look, font, {240, 240}));
        }));
    }
    bench::stateLimit(state, times, FaceLimitMs);
}

void dialGripStep(benchmark::State &state)
{
    bench::Program program;
    program.design().addControl(controls::ControlType::CustomDial, {1500, 1500});
    const controls::OverlayControl &dial = *program.design().controls().last();
    auto &canvas = *program.design().findChild<surface::Canvas *>();
    const auto send = [&canvas](QEvent::Type type, QPoint at) {
        const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, at, canvas.mapToGlobal(at), button, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&canvas, &event);
        QApplication::processEvents();
    };
    const QPoint grip = dial.outerRect().bottomRight() - QPoint(1, 1);
    send(QEvent::MouseButtonPress, grip);
    bench::Times times;
    int step = 0;
    for (auto _ : state) {
        const int way = 20 + 4 * (++step % 10);
        state.SetIterationTime(times.measure([&] { send(QEvent::MouseMove, grip + QPoint(way, way)); }));
    }
    bench::stateLimit(state, times, StepLimitMs);
}

BENCHMARK(dialFace)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(dialGripStep)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
