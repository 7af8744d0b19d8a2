#include "graphics/thumbnail.h"

#include <QBuffer>
#include <QImageWriter>

namespace graphics {

namespace {

constexpr int Reduction = 6;
constexpr int Quality = 90;

} // namespace

Thumbnail thumbnailOf(const QImage &surface)
{
    const QImage small = surface.scaled(surface.width() / Reduction, surface.height() / Reduction,
                                        Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QBuffer buffer;
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(Quality);
    if (!writer.write(small.convertToFormat(QImage::Format_RGB32)))
        return {{}, writer.errorString()};
    return {buffer.data(), {}};
}

} // namespace graphics
