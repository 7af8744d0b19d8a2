// sample_pictures FOLDER: the planes of a test picture and text drawn from its font files, for looking at.

#include "graphics/composer.h"
#include "graphics/font_generator.h"
#include "graphics/modDrawFont.h"
#include "graphics/planes.h"

#include <QDir>
#include <QGuiApplication>
#include <QPainter>

namespace {

using namespace graphics;

QImage filled(QSize size, const QBrush &brush)
{
    QImage picture(size, QImage::Format_RGB32);
    QPainter(&picture).fillRect(picture.rect(), brush);
    return picture;
}

// All hues, dark to light.
QImage hues()
{
    QImage picture(240, 160, QImage::Format_RGB32);
    for (int i = 0; i < 240 * 160; ++i)
        picture.setPixel(i % 240, i / 240, QColor::fromHsl(i % 240 * 3 / 2, 255, i / 240 * 8 / 5).rgb());
    return picture;
}

QImage textSheet()
{
    const std::tuple<int, FontStyle, quint8> lines[] = {
        {8, {}, 255},      {12, {}, 255}, {12, {true}, 255},      {12, {false, true, true, true}, 255},
        {24, {true}, 153}, {24, {}, 64},  {48, {true, true}, 200}};
    QImage sheet = filled({720, 360}, QColor(40, 70, 110));
    platform::NoProgress progress;
    TextLook look{{12, 8}, 0xFFFFFF, 255, nullptr};
    for (const auto &[size, style, opacity] : lines) {
        const auto pair = renderFont({QStringLiteral("Arial"), size, style},
                                     QStringLiteral(MORVEL_PROGRAM_DIR "/fonts/"), progress);
        const auto font = TextFont::fromFiles(pair->standard, pair->extended);
        look.opacity = opacity;
        drawText(*font, QStringLiteral("Lap 3/12 (01:02.345) <Speed> Äéç gjpqy"), look, sheet);
        look.position.ry() += font->lineHeight() + 6;
    }
    return sheet;
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    const QDir folder(QString::fromLocal8Bit(argc > 1 ? argv[1] : "."));
    const auto write = [&folder](const char *name, const QImage &picture) {
        picture.save(folder.filePath(QLatin1String(name)));
    };
    const auto plane = [](const QByteArray &values, QSize size) {
        return toPicture(AlphaPlane{size.width(), size.height(), values});
    };
    const Planes planes = toPlanes(hues(), {240, 160});
    write("y.png", plane(planes.y, planes.size()));
    write("u.png", plane(planes.u, planes.size() / 2));
    write("v.png", plane(planes.v, planes.size() / 2));
    QImage surface = filled(planes.size(), Qt::darkGray);
    compose(surface, {20, 20}, toPicture(planes), toAlphaPlane(hues(), planes.size()), 200);
    write("composed.png", surface);
    write("text.png", textSheet());
    return 0;
}
