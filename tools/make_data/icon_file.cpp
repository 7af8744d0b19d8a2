#include "make_data/icon_file.h"

#include "common/bytes.h"

namespace make_data {

namespace {

constexpr qsizetype HeaderSize = 6;
constexpr qsizetype EntrySize = 16;
constexpr quint16 IconType = 1;
constexpr quint16 BitsAPixel = 32;

// A bitmap without file header. Its height counts the mask as well, which clears nothing: the pixels have
// alpha.
QByteArray bitmapOf(const QImage &image)
{
    constexpr quint32 InfoSize = 40, MaskAlignment = 32; // bytes, bits
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32);
    const auto width = static_cast<quint32>(pixels.width()), height = static_cast<quint32>(pixels.height());
    const quint32 maskRow = (width + MaskAlignment - 1) / MaskAlignment * (MaskAlignment / 8);
    common::ByteWriter bitmap;
    for (const quint32 field : {InfoSize, width, 2 * height})
        bitmap.put(field);
    bitmap.put(quint16{1});          // planes
    bitmap.put(quint16{BitsAPixel}); // not compressed, without palette and resolution:
    for (int field = 0; field < 6; ++field)
        bitmap.put(quint32{0});
    for (int y = pixels.height() - 1; y >= 0; --y)
        bitmap.put(QByteArrayView(pixels.constScanLine(y), pixels.bytesPerLine()));
    bitmap.put(QByteArrayView(QByteArray(static_cast<qsizetype>(maskRow * height), '\0')));
    return bitmap.bytes();
}

// A width or height of 256 is stored as 0.
quint8 extent(int pixels) { return static_cast<quint8>(pixels & 0xFF); }

void putEntry(common::ByteWriter &file, const QImage &image, qsizetype size, qsizetype offset)
{
    file.put(extent(image.width()));
    file.put(extent(image.height()));
    file.put(quint8{0});  // no palette
    file.put(quint8{0});  // reserved
    file.put(quint16{1}); // planes
    file.put(BitsAPixel);
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
        const QByteArray bitmap = bitmapOf(image);
        putEntry(file, image, bitmap.size(), firstPicture + pictures.size());
        pictures.append(bitmap);
    }
    file.put(QByteArrayView(pictures));
    return file.bytes();
}

} // namespace make_data
