#include "make_data/picture_renderer.h"

#include "make_data/icon_file.h"

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>
#include <QSvgRenderer>

namespace make_data {

namespace {

constexpr int JpegQuality = 92;
constexpr int DotsPerMeter = 3780; // 96 to the inch, whatever the machine of the build says
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

} // namespace make_data
