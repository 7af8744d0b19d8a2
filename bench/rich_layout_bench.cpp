// A rich layout: 40 controls of all eight families with 6 full-screen bitmaps, 3 dials and 5 fonts that exist
// already. Saving it may take twice as long as a CRC-32 over the same bytes and writing them with the same
// flushes. Loading it until it is painted has 100 ms, and may take 2.5 times as long as turning the same
// planes into pictures.

#include "bench_support.h"
#include "controls/bitmap/bitmap.h"
#include "controls/custom_dial/custom_dial.h"
#include "controls/text_tag/text_tag.h"
#include "layoutfile/modCRC.h"
#include "platform/file_replace.h"

#include <QApplication>
#include <QPainter>

namespace {

using bench::Program;
using controls::ControlType;

constexpr double MostOfWriting = 2;
constexpr double MostOfDecoding = 2.5;
constexpr double LoadMs = 100;

// Each picture is another one.
QImage picture(int number)
{
    QImage picture(720, 576, QImage::Format_RGB32);
    QPainter painter(&picture);
    QLinearGradient gradient(0, 0, 720, 576);
    gradient.setColorAt(0, QColor::fromHsv(number * 50 % 360, 255, 200));
    gradient.setColorAt(1, QColor::fromHsv(number * 50 % 360 / 2, 100, 60));
    painter.fillRect(picture.rect(), gradient);
    return picture;
}

template <typename Control>
Control &added(Program &program, ControlType family, int number)
{
    const int row = number / 10;
    program.design().addControl(family, {number % 10 * 750.0, row * 1500.0});
    return static_cast<Control &>(*program.design().controls().last());
}

void addBitmap(Program &program, int number)
{
    auto &bitmap = added<controls::Bitmap>(program, ControlType::Bitmap, number);
    controls::BitmapValues values = bitmap.get();
    values.picture = graphics::PlanePicture::chosen(picture(number), picture(number + 3));
    values.curFileName = QStringLiteral("source%1.bmp").arg(number);
    values.curAlfaFileName = QStringLiteral("alpha%1.bmp").arg(number);
    values.curAlfa = 128;
    bitmap.set(values);
    bitmap.AssignProperties();
}

void addText(Program &program, int number)
{
    auto &text = added<controls::TextTag>(program, ControlType::TextTag, number);
    controls::TextTagValues values = text.get();
    values.curFontSize = static_cast<qint16>(10 + 4 * (number % 5));
    text.set(values);
    text.AssignProperties();
}

void addAll(Program &program)
{
    constexpr std::array Others{ControlType::Gauge, ControlType::BarGraph, ControlType::DigitalDisplay};
    int number = 0;
    for (int i = 0; i < 6; ++i)
        addBitmap(program, ++number);
    for (int i = 0; i < 10; ++i)
        addText(program, ++number);
    for (int i = 0; i < 3; ++i)
        added<controls::CustomDial>(program, ControlType::CustomDial, ++number);
    added<controls::OverlayControl>(program, ControlType::TrackMap, ++number);
    for (quint8 camera = 0; camera < 2; ++camera)
        added<controls::OverlayControl>(program, ControlType::VideoSource, ++number)
            .write("NewCameraNo", camera);
    for (; number < 40; ++number)
        added<controls::OverlayControl>(program, Others[static_cast<std::size_t>(number) % Others.size()],
                                        number);
    QApplication::processEvents(); // what is painted has its fonts
}

std::vector<graphics::Planes> planesOf(Program &program)
{
    std::vector<graphics::Planes> planes;
    for (controls::OverlayControl *control : program.design().controls()) {
        if (control->family().type == ControlType::Bitmap)
            planes.push_back(static_cast<controls::Bitmap *>(control)->get().picture.planes());
        if (control->family().type == ControlType::CustomDial)
            planes.push_back(static_cast<controls::CustomDial *>(control)->face().planes());
    }
    return planes;
}

void saveRichLayout(benchmark::State &state)
{
    Program program;
    addAll(program);
    const auto [own, peer] = bench::measureSaves(state, program, [&](const QByteArray &bytes) {
        benchmark::DoNotOptimize(layoutfile::modCRC(bytes));
        platform::replaceFile(program.savePath(), bytes);
    });
    bench::stateLimit(state, own, MostOfWriting * peer.median() * 1e3);
    bench::statePeer(state, own, peer);
}

void loadRichLayout(benchmark::State &state)
{
    Program writer;
    addAll(writer);
    const std::vector<graphics::Planes> planes = planesOf(writer);
    const auto [own, peer] = bench::measureLoads(state, writer, [&] {
        for (const graphics::Planes &picture : planes)
            benchmark::DoNotOptimize(graphics::toPicture(picture));
    });
    bench::stateLimit(state, own, std::min(LoadMs, MostOfDecoding * peer.median() * 1e3));
    bench::statePeer(state, own, peer);
}

BENCHMARK(saveRichLayout)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(loadRichLayout)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(20);

} // namespace
