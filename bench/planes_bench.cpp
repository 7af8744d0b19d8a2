// Pictures of a full frame to planes and back, and the composer, beside the same tasks of libyuv on the same
// buffers. Limits: to planes no slower, to picture and composer at most 1.5 times as long. (Its formulas
// round differently, and its U and V are means; it is the measure of speed only.)

#include "graphics/composer.h"
#include "graphics/planes.h"

#include <benchmark/benchmark.h>
#include <libyuv.h>

namespace {

using graphics::AlphaPlane;
using graphics::Planes;

constexpr QSize Frame(720, 576);
constexpr int Level = 200;

// Colours with their alpha multiplied in, as libyuv's composer wants them.
QImage somePicture()
{
    QImage picture(Frame, QImage::Format_ARGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qPremultiply(qRgba(x * 7 + y, x ^ y, y * 5 - x, x + y)));
    }
    return picture;
}

struct Buffers
{
    QImage source = somePicture();
    QImage surface = somePicture().mirrored().convertToFormat(QImage::Format_RGB32);
    Planes planes = graphics::toPlanes(source, Frame);
    AlphaPlane alpha = AlphaPlane::ofSize(Frame);

    Buffers()
    {
        for (int y = 0; y < source.height(); ++y) {
            for (int x = 0; x < source.width(); ++x)
                alpha.values[qsizetype{y} * alpha.width + x] = static_cast<char>(qAlpha(source.pixel(x, y)));
        }
    }

    quint8 *y() { return reinterpret_cast<quint8 *>(planes.y.data()); }
    quint8 *u() { return reinterpret_cast<quint8 *>(planes.u.data()); }
    quint8 *v() { return reinterpret_cast<quint8 *>(planes.v.data()); }
    int chromaWidth() const { return planes.width / 2; }
    int rowBytes() const { return static_cast<int>(source.bytesPerLine()); }
};

template <typename Task>
void measure(benchmark::State &state, Task task)
{
    Buffers buffers;
    for (auto _ : state) {
        task(buffers);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * Frame.width() * Frame.height());
}

void pictureToPlanes(benchmark::State &state)
{
    measure(state, [](Buffers &b) { graphics::fillPlanes(b.planes, b.source); });
}
BENCHMARK(pictureToPlanes);

void pictureToPlanesPeer(benchmark::State &state)
{
    measure(state, [](Buffers &b) {
        libyuv::ARGBToI420(b.source.constBits(), b.rowBytes(), b.y(), b.planes.width, b.u(), b.chromaWidth(),
                           b.v(), b.chromaWidth(), Frame.width(), Frame.height());
    });
}
BENCHMARK(pictureToPlanesPeer);

void planesToPicture(benchmark::State &state)
{
    measure(state, [](Buffers &b) { graphics::fillPicture(b.surface, b.planes); });
}
BENCHMARK(planesToPicture);

void planesToPicturePeer(benchmark::State &state)
{
    measure(state, [](Buffers &b) {
        libyuv::I420ToARGB(b.y(), b.planes.width, b.u(), b.chromaWidth(), b.v(), b.chromaWidth(),
                           b.surface.bits(), b.rowBytes(), Frame.width(), Frame.height());
    });
}
BENCHMARK(planesToPicturePeer);

void composer(benchmark::State &state)
{
    measure(state, [](Buffers &b) { graphics::compose(b.surface, {}, b.source, b.alpha, Level); });
}
BENCHMARK(composer);

void composerPeer(benchmark::State &state)
{
    measure(state, [](Buffers &b) {
        libyuv::ARGBBlend(b.source.constBits(), b.rowBytes(), b.surface.constBits(), b.rowBytes(),
                          b.surface.bits(), b.rowBytes(), Frame.width(), Frame.height());
    });
}
BENCHMARK(composerPeer);

// What the choice of a picture costs beside its file: padded planes and an alpha plane, from nothing.
void chosenPicture(benchmark::State &state)
{
    measure(state, [](Buffers &b) {
        benchmark::DoNotOptimize(graphics::toPlanes(b.source, graphics::paddedSize(Frame)));
        benchmark::DoNotOptimize(graphics::toAlphaPlane(b.source, graphics::paddedSize(Frame)));
    });
}
BENCHMARK(chosenPicture);

} // namespace

BENCHMARK_MAIN();
