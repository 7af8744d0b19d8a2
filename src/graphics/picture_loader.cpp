#include "graphics/picture_loader.h"

#include "graphics/bmp_check.h"
#include "graphics/scan_lines.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>
#include <array>

namespace graphics {

namespace {

constexpr char PngSignature[] = "\x89PNG\r\n\x1A\n";
constexpr char JpegSignature[] = "\xFF\xD8\xFF";
constexpr char JpegEnd[] = "\xFF\xD9";

// Uncompressed pixels of the largest picture, and room for headers.
constexpr qint64 MaxFileSize = qint64{MaxPictureSide} * MaxPictureSide * 4 + 0x10000;

// The name of the decoder; empty for what is not taken.
QByteArray formatOf(QByteArrayView bytes)
{
    if (looksLikeBmp(bytes))
        return "bmp";
    if (bytes.startsWith(PngSignature))
        return "png";
    return bytes.startsWith(JpegSignature) ? "jpeg" : "";
}

bool hasEnd(const QByteArray &format, QByteArrayView bytes)
{
    // A .png without an end is refused by its decoder, a .jpg would be filled with grey.
    return format != "jpeg" || bytes.lastIndexOf(QByteArrayView(JpegEnd)) >= 0;
}

PictureFault checkBeforeDecoding(const QImageReader &reader, QByteArrayView bytes, int maxSide)
{
    if (reader.format() == "bmp")
        return checkBmp(bytes, maxSide);
    const QSize size = reader.size();
    if (size.isEmpty())
        return PictureFault::NotAPicture;
    if (size.width() > maxSide || size.height() > maxSide)
        return PictureFault::TooLarge;
    return hasEnd(reader.format(), bytes) ? PictureFault::None : PictureFault::Cut;
}

// Decoders leave the lower bits of short channels at 0; here all bits set are full light.
std::array<quint8, 256> fullRange(int bits)
{
    std::array<quint8, 256> levels{};
    const int most = (1 << bits) - 1;
    for (int level = 0; level < 256 && most > 0; ++level)
        levels[static_cast<std::size_t>(level)] =
            static_cast<quint8>(((level >> (8 - bits)) * 255 + most / 2) / most);
    return levels;
}

void spreadChannels(QImage &picture, const std::array<int, 3> &bits)
{
    if (bits == std::array{8, 8, 8})
        return;
    const auto red = fullRange(bits[0]), green = fullRange(bits[1]), blue = fullRange(bits[2]);
    const auto at = [](int value) { return static_cast<std::size_t>(value); };
    for (int y = 0; y < picture.height(); ++y) {
        QRgb *pixels = pixelsOf(picture, y);
        std::transform(pixels, pixels + picture.width(), pixels, [&](QRgb pixel) {
            return qRgb(red[at(qRed(pixel))], green[at(qGreen(pixel))], blue[at(qBlue(pixel))]);
        });
    }
}

LoadedPicture refused(PictureFault fault) { return {{}, fault}; }

} // namespace

LoadedPicture readPicture(QByteArrayView bytes, int maxSide)
{
    if (bytes.isEmpty())
        return refused(PictureFault::Empty);
    const QByteArray format = formatOf(bytes);
    if (format.isEmpty())
        return refused(PictureFault::NotAPicture);
    QByteArray content = QByteArray::fromRawData(bytes.data(), bytes.size());
    QBuffer buffer(&content);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    if (const auto fault = checkBeforeDecoding(reader, bytes, maxSide); fault != PictureFault::None)
        return refused(fault);
    QImage picture = format == "bmp" ? trueColourPicture(bytes) : QImage();
    if (picture.isNull())
        picture = reader.read();
    if (picture.isNull())
        return refused(PictureFault::Cut);
    picture.convertTo(QImage::Format_RGB32);
    if (format == "bmp")
        spreadChannels(picture, channelBits(bytes));
    const QImage usual(1, 1, picture.format()); // the file's resolution would give texts upon it another size
    picture.setDotsPerMeterX(usual.dotsPerMeterX());
    picture.setDotsPerMeterY(usual.dotsPerMeterY());
    return {picture, PictureFault::None};
}

LoadedPicture loadPicture(const QString &path)
{
    QFile file(path);
    // Pipes and devices would wait, or never end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return refused(PictureFault::Unreadable);
    if (file.size() > MaxFileSize)
        return refused(PictureFault::TooLarge);
    return readPicture(file.readAll());
}

QByteArray bmpOf(const QImage &picture)
{
    QBuffer buffer;
    picture.save(&buffer, "BMP");
    return buffer.data();
}

} // namespace graphics
