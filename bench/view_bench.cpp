// What changes the view of 200 controls of all families, until it is painted: entering Preview has 50 ms, one
// step of zooming or scrolling 8 ms.

#include "bench_support.h"
#include "controls/bitmap/bitmap.h"
#include "surface/canvas_view.h"
#include "surface/zoom.h"

#include <QApplication>
#include <QScrollBar>

namespace {

using bench::Program;
using bench::Times;

constexpr int Controls = 200;
constexpr double PreviewMs = 50;
constexpr double StepMs = 8;

void givePicture(controls::Bitmap &bitmap)
{
    QImage picture(96, 96, QImage::Format_RGB32);
    QImage alpha(96, 96, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    alpha.fill(Qt::gray);
    controls::BitmapValues values = bitmap.get();
    values.picture = graphics::PlanePicture::chosen(picture, alpha);
    values.curFileName = values.curAlfaFileName = QStringLiteral("some.bmp");
    values.curAlfa = 128;
    bitmap.set(values);
    bitmap.AssignProperties();
}

void addAllFamilies(Program &program)
{
    const auto families = controls::families();
    for (int i = 0; i < Controls; ++i) {
        const QPointF place(QPoint(i % 20 * 450, i / 20 * 810)); // twips, all over the canvas
        program.design().addControl(families[static_cast<std::size_t>(i) % families.size()].type, place);
        if (auto *bitmap = dynamic_cast<controls::Bitmap *>(program.design().controls().last()))
            givePicture(*bitmap);
    }
    QApplication::processEvents();
}

// Times `step` and the repaint that follows, then does `after`.
template <typename Step, typename After>
void measure(benchmark::State &state, double limitMs, Step step, After after)
{
    Times times;
    while (state.KeepRunning()) {
        state.SetIterationTime(times.measure([&] {
            step();
            QApplication::processEvents();
        }));
        after();
        QApplication::processEvents();
    }
    bench::stateLimit(state, times, limitMs);
}

void enterPreview(benchmark::State &state)
{
    Program program;
    addAllFamilies(program);
    surface::frmInterface &design = program.design();
    measure(
        state, PreviewMs, [&] { design.mnuPlayMode_Click(); }, [&] { design.mnuEditMode_Click(); });
}

void zoomStep(benchmark::State &state)
{
    Program program;
    addAllFamilies(program);
    surface::CanvasView &view = program.design().view();
    bool larger = true; // to and fro through all steps
    measure(
        state, StepMs, [&] { view.stepZoom(larger); },
        [&] {
            if (view.zoom() == surface::LargestZoom || view.zoom() == surface::SmallestZoom)
                larger = !larger;
        });
}

void scrollStep(benchmark::State &state)
{
    Program program;
    addAllFamilies(program);
    surface::CanvasView &view = program.design().view();
    view.setZoom(static_cast<int>(state.range(0)));
    QScrollBar &bar = *view.verticalScrollBar();
    int step = 20;
    measure(
        state, StepMs, [&] { bar.setValue(bar.value() + step); },
        [&] {
            if (bar.value() == bar.maximum() || bar.value() == 0)
                step = -step;
        });
}

BENCHMARK(enterPreview)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(zoomStep)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(scrollStep)->Arg(200)->Arg(250)->UseManualTime()->Unit(benchmark::kMillisecond); // crisp, smooth

} // namespace
