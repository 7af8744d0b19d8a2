// Writes a picture of every stage of the conversion into a folder, for looking at:
//   picture_stages FOLDER [PICTURE]

#include "graphics/composer.h"
#include "graphics/picture_loader.h"
#include "graphics/planes.h"

#include <QDir>
#include <QPainter>

#include <algorithm>
#include <cstdio>

namespace {

using graphics::AlphaPlane;
using graphics::Planes;

// All hues, dark to light, with a grey ramp, thin coloured lines and a size that is aligned already.
QImage testPicture()
{
    QImage picture(240, 160, QImage::Format_RGB32);
    for (int y = 0; y < 160; ++y) {
        for (int x = 0; x < 240; ++x) {
            const QColor hue = QColor::fromHsl(x * 359 / 239, 255, std::min(20 + y * 215 / 119, 255));
            const int grey = x * 255 / 239;
            picture.setPixel(x, y, y < 120 ? hue.rgb() : qRgb(grey, grey, grey));
        }
    }
    QPainter painter(&picture);
    for (int line = 0; line < 8; ++line) {
        painter.setPen(QColor::fromHsv(line * 45, 255, 255));
        painter.drawLine(10 + 14 * line, 130, 40 + 14 * line, 155);
        painter.drawLine(150 + 9 * line, 125, 150 + 9 * line, 158);
    }
    return picture;
}

// A soft disc: opaque in the middle, with its faint rim to be cut off.
QImage disc(QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    const QPointF centre(size.width() / 2.0, size.height() / 2.0);
    QRadialGradient fade(centre, size.height() / 2.0);
    fade.setColorAt(0.5, Qt::white);
    fade.setColorAt(1, Qt::black);
    QPainter(&picture).fillRect(picture.rect(), fade);
    return picture;
}

QImage chequers(QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            picture.setPixel(x, y, (x / 16 + y / 16) % 2 ? qRgb(90, 90, 90) : qRgb(160, 160, 160));
    }
    return picture;
}

} // namespace

int main(int argc, char **argv)
{
    const QDir folder(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("."));
    const QImage source =
        argc > 2 ? graphics::loadPicture(QString::fromLocal8Bit(argv[2])).picture : testPicture();
    if (source.isNull() || !folder.mkpath(QStringLiteral("."))) {
        std::fputs("usage: picture_stages FOLDER [PICTURE]\n", stderr);
        return 1;
    }
    const auto write = [&folder](const char *name, const QImage &picture) {
        picture.save(folder.filePath(QLatin1String(name) + QStringLiteral(".png")));
    };
    const Planes planes = graphics::toPlanes(source, graphics::paddedSize(source.size()));
    const AlphaPlane alpha = graphics::toAlphaPlane(disc(source.size()), planes.size());
    const auto grey = [](const QByteArray &plane, QSize size) {
        return graphics::toPicture(AlphaPlane{size.width(), size.height(), plane});
    };
    write("1_source", source);
    write("2_y", grey(planes.y, planes.size()));
    write("3_u", grey(planes.u, planes.size() / 2));
    write("4_v", grey(planes.v, planes.size() / 2));
    write("5_alpha", graphics::toPicture(alpha));
    write("6_back_from_planes", graphics::toPicture(planes));
    QImage surface = chequers(planes.size());
    graphics::compose(surface, {}, graphics::toPicture(planes), alpha, 255);
    write("7_composed", surface);
    surface = chequers(planes.size());
    graphics::compose(surface, {}, graphics::toPicture(planes), alpha, 128);
    write("8_composed_at_half_level", surface);
    write("9_sampled_to_half", graphics::sampled(source, source.size() / 2));
    return 0;
}
