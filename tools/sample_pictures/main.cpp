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

QImage textSheet()
{
    QImage sheet = filled({720, 360}, QColor(40, 70, 110));
    platform::NoProgress progress;
    TextLook look{{12, 8}, 0xFFFFFF, 255, nullptr};
    for (const int size : {8, 12, 14, 16, 24, 48}) {
        const FontStyle style{size > 20, size == 14, size == 16, size == 16};
        const auto pair = renderFont({QStringLiteral("Arial"), size, style},
                                     QStringLiteral(MORVEL_PROGRAM_DIR "/fonts/"), progress);
        const auto font = TextFont::fromFiles(pair->standard, pair->extended);
        look.opacity = static_cast<quint8>(255 - 4 * size);
        drawText(*font, QStringLiteral("Lap 3/12 (01:02.345) <Speed> Äéç gjpqy"), look, sheet);
        look.position.ry() += font->lineHeight() + 6;
    }
    return sheet;
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    QDir::setCurrent(QString::fromLocal8Bit(argc > 1 ? argv[1] : "."));
    QImage hues(240, 160, QImage::Format_RGB32);
    for (int i = 0; i < 240 * 160; ++i)
        hues.setPixel(i % 240, i / 240, QColor::fromHsl(i % 240 * 3 / 2, 255, i / 240 * 8 / 5).rgb());
    const Planes planes = toPlanes(hues, {240, 160});
    toPicture(AlphaPlane{240, 160, planes.y}).save(QStringLiteral("y.png"));
    toPicture(AlphaPlane{120, 80, planes.u}).save(QStringLiteral("u.png"));
    toPicture(AlphaPlane{120, 80, planes.v}).save(QStringLiteral("v.png"));
    QImage surface = filled(planes.size(), Qt::darkGray);
    compose(surface, {20, 20}, toPicture(planes), toAlphaPlane(hues, planes.size()), 200);
    surface.save(QStringLiteral("composed.png"));
    textSheet().save(QStringLiteral("text.png"));
    return 0;
}
