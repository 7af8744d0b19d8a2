#include "make_data/picture_renderer.h"

#include "make_data/icon_file.h"

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>
#include <QSvgRenderer>

namespace make_data {

namespace {

constexpr int JpegQuality = 92;
constexpr int DotsPerMeter = 3780;        // 96 to the inch, whatever the machine of the build says
constexpr QRgb NothingDrawn = 0xFF808080; // the colour where a drawing is transparent
constexpr int IconSizes[] = {16, 24, 32, 48, 64, 128, 256};

QImage paint(QSvgRenderer &drawing, QSize size, QImage::Format format, Qt::GlobalColor ground)
{
    QImage image(size, format);
    image.setDotsPerMeterX(DotsPerMeter);
    image.setDotsPerMeterY(DotsPerMeter);
    image.fill(ground);
    QPainter painter(&image);
    drawing.render(&painter, QRectF(QPointF(), size));
    return image;
}

QImage paintTransparent(QSvgRenderer &drawing, QSize size)
{
    return paint(drawing, size, QImage::Format_ARGB32_Premultiplied, Qt::transparent);
}

std::optional<QByteArray> encode(const QImage &image, const QString &format)
{
    QBuffer buffer;
    QImageWriter writer(&buffer, format.toLatin1());
    if (format == QLatin1String("jpg"))
        writer.setQuality(JpegQuality);
    if (!writer.write(image))
        return {};
    return buffer.data();
}

// A recorder mixes the colours of a pixel and its neighbours, so a pixel that is hardly there takes the
// colour of the one in its block of two by two that is there most.
QRgb colourIn(const QImage &drawn, int x, int y)
{
    constexpr int HalfOpaque = 128;
    QRgb colour = drawn.pixel(x, y);
    if (qAlpha(colour) >= HalfOpaque)
        return colour;
    const QPoint block(x - x % 2, y - y % 2);
    for (const QPoint other : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1)}) {
        const QRgb candidate = drawn.pixel(block + other);
        colour = qAlpha(candidate) > qAlpha(colour) ? candidate : colour;
    }
    return qAlpha(colour) > 0 ? colour : NothingDrawn;
}

QImage coloursOf(const QImage &drawn)
{
    QImage colours = drawn.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < drawn.height(); ++y) {
        for (int x = 0; x < drawn.width(); ++x)
            colours.setPixel(x, y, colourIn(drawn, x, y));
    }
    return colours;
}

QImage alphaOf(const QImage &drawn)
{
    QImage alpha = drawn.convertToFormat(QImage::Format_Alpha8);
    alpha.reinterpretAsFormat(QImage::Format_Grayscale8);
    return alpha;
}

QByteArray encodeIcon(QSvgRenderer &drawing, QSize largest)
{
    QList<QImage> images;
    for (const int size : IconSizes) {
        if (size <= largest.width())
            images.append(paintTransparent(drawing, {size, size}));
    }
    return iconFile(images);
}

} // namespace

std::optional<QByteArray> renderPicture(const QString &svgPath, QSize size, const QString &format)
{
    QSvgRenderer drawing;
    if (!drawing.load(svgPath))
        return {};
    if (format == QLatin1String("ico"))
        return encodeIcon(drawing, size);
    if (format == QLatin1String("png"))
        return encode(paintTransparent(drawing, size), format);
    if (format == QLatin1String("bmp") || format == QLatin1String("jpg"))
        return encode(paint(drawing, size, QImage::Format_RGB32, Qt::white), format);
    return {};
}

QSize drawnSize(const QString &svgPath)
{
    QSvgRenderer drawing;
    return drawing.load(svgPath) ? drawing.defaultSize() : QSize();
}

std::optional<PicturePair> renderPair(const QString &svgPath, QSize size)
{
    QSvgRenderer drawing;
    if (!drawing.load(svgPath))
        return {};
    const QImage drawn = paintTransparent(drawing, size);
    const auto colours = encode(coloursOf(drawn), QStringLiteral("bmp"));
    const auto alpha = encode(alphaOf(drawn), QStringLiteral("bmp"));
    return colours && alpha ? std::optional(PicturePair{*colours, *alpha}) : std::nullopt;
}

} // namespace make_data
