#include "make_data/icon_file.h"

#include "common/bytes.h"

#include <QBuffer>

namespace make_data {

namespace {

constexpr qsizetype HeaderSize = 6;
constexpr qsizetype EntrySize = 16;
constexpr quint16 IconType = 1;

QByteArray pngOf(const QImage &image)
{
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

// A width or height of 256 is stored as 0.
quint8 extent(int pixels) { return static_cast<quint8>(pixels & 0xFF); }

void putEntry(common::ByteWriter &file, const QImage &image, qsizetype size, qsizetype offset)
{
    file.put(extent(image.width()));
    file.put(extent(image.height()));
    file.put(quint8{0});   // no palette
    file.put(quint8{0});   // reserved
    file.put(quint16{1});  // planes
    file.put(quint16{32}); // bits per pixel
    file.put(static_cast<quint32>(size));
    file.put(static_cast<quint32>(offset));
}

} // namespace

QByteArray iconFile(const QList<QImage> &images)
{
    common::ByteWriter file;
    file.put(quint16{0});
    file.put(IconType);
    file.put(static_cast<quint16>(images.size()));
    QByteArray pictures;
    const qsizetype firstPicture = HeaderSize + EntrySize * images.size();
    for (const QImage &image : images) {
        const QByteArray png = pngOf(image);
        putEntry(file, image, png.size(), firstPicture + pictures.size());
        pictures.append(png);
    }
    file.put(QByteArrayView(pictures));
    return file.bytes();
}

} // namespace make_data
