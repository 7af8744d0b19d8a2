#include "graphics/bmp_check.h"

#include "common/bytes.h"

#include <algorithm>
#include <bit>
#include <cstdlib>

namespace graphics {

namespace {

constexpr qint64 FileHeaderSize = 14;
constexpr quint32 CoreHeaderSize = 12; // the oldest header, with 16-bit sizes
constexpr quint32 InfoHeaderSize = 40;

enum Compression : quint32 { Uncompressed = 0, RunLength8 = 1, RunLength4 = 2, BitFields = 3 };

struct BmpHeader
{
    qint64 dataOffset = 0;
    quint32 headerSize = 0;
    qint64 width = 0;
    qint64 height = 0; // negative where the rows run top first
    int planes = 0;
    int bitsPerPixel = 0;
    quint32 compression = Uncompressed;
    quint32 coloursUsed = 0;

    bool isRunLength() const { return compression == RunLength8 || compression == RunLength4; }
    qint64 rows() const { return std::abs(height); }
};

BmpHeader readHeader(QByteArrayView bytes)
{
    common::ByteReader reader(bytes);
    BmpHeader header;
    reader.get(10); // signature, file size, two spare words
    header.dataOffset = reader.get<quint32>();
    header.headerSize = reader.get<quint32>();
    const bool core = header.headerSize == CoreHeaderSize;
    header.width = core ? reader.get<quint16>() : reader.get<qint32>();
    header.height = core ? reader.get<quint16>() : reader.get<qint32>();
    header.planes = reader.get<quint16>();
    header.bitsPerPixel = reader.get<quint16>();
    if (core)
        return header;
    header.compression = reader.get<quint32>();
    reader.get(12); // size of the data and the two resolutions
    header.coloursUsed = reader.get<quint32>();
    return header;
}

bool isKnown(const BmpHeader &header)
{
    constexpr quint32 headerSizes[] = {CoreHeaderSize, InfoHeaderSize, 64, 108, 124};
    constexpr int depths[] = {1, 4, 8, 16, 24, 32};
    const auto holds = [](const auto &list, auto value) {
        return std::find(std::begin(list), std::end(list), value) != std::end(list);
    };
    const bool depthFits = [&] {
        switch (header.compression) {
        case Uncompressed:
            return true;
        case RunLength8:
            return header.bitsPerPixel == 8;
        case RunLength4:
            return header.bitsPerPixel == 4;
        case BitFields:
            return header.bitsPerPixel == 16 || header.bitsPerPixel == 32;
        default:
            return false;
        }
    }();
    // Run-length coded rows that run top first do not exist.
    return holds(headerSizes, header.headerSize) && holds(depths, header.bitsPerPixel) && depthFits &&
           header.planes == 1 && header.width > 0 && header.height != 0 &&
           !(header.isRunLength() && header.height < 0);
}

// Where decoders look for the first row: after masks and palette, wherever the header says it is.
qint64 startOfData(const BmpHeader &header)
{
    qint64 start = FileHeaderSize + header.headerSize;
    if (header.compression == BitFields && header.headerSize == InfoHeaderSize)
        start += 3 * sizeof(quint32);
    if (header.bitsPerPixel <= 8) {
        const qint64 colours = header.coloursUsed != 0 ? header.coloursUsed : 1 << header.bitsPerPixel;
        start += colours * (header.headerSize == CoreHeaderSize ? 3 : 4);
    }
    return std::max(start, header.dataOffset);
}

qint64 rowBytes(const BmpHeader &header) { return (header.width * header.bitsPerPixel + 31) / 32 * 4; }

// Whether run-length codes reach their end mark before the bytes end.
bool endsProperly(QByteArrayView codes, bool fourBits)
{
    constexpr quint8 endOfPicture = 1;
    constexpr quint8 jump = 2;
    common::ByteReader reader(codes);
    while (!reader.failed()) {
        const auto count = reader.get<quint8>();
        const auto code = reader.get<quint8>();
        if (count != 0 || reader.failed())
            continue;
        if (code == endOfPicture)
            return true;
        if (code == jump)
            reader.get(2);
        else if (code > jump) {
            const qsizetype length = fourBits ? (code + 1) / 2 : code;
            reader.get(length + length % 2); // literal pixels, in whole words
        }
    }
    return false;
}

} // namespace

bool looksLikeBmp(QByteArrayView bytes) { return bytes.startsWith("BM"); }

PictureFault checkBmp(QByteArrayView bytes, int maxSide)
{
    const BmpHeader header = readHeader(bytes);
    if (bytes.size() < FileHeaderSize + qsizetype{CoreHeaderSize})
        return PictureFault::Cut;
    if (!isKnown(header))
        return PictureFault::NotAPicture;
    if (bytes.size() < FileHeaderSize + qsizetype{header.headerSize})
        return PictureFault::Cut;
    if (header.width > maxSide || header.rows() > maxSide)
        return PictureFault::TooLarge;
    const qint64 start = startOfData(header);
    if (start > bytes.size())
        return PictureFault::Cut;
    const QByteArrayView data = bytes.sliced(start);
    if (header.isRunLength())
        return endsProperly(data, header.compression == RunLength4) ? PictureFault::None : PictureFault::Cut;
    return rowBytes(header) * header.rows() <= data.size() ? PictureFault::None : PictureFault::Cut;
}

QImage trueColourPicture(QByteArrayView bytes)
{
    constexpr int Depth = 24;
    const BmpHeader header = readHeader(bytes);
    if (header.bitsPerPixel != Depth || header.compression != Uncompressed)
        return {};
    const QByteArrayView data = bytes.sliced(startOfData(header));
    const QImage stored(reinterpret_cast<const uchar *>(data.data()), static_cast<int>(header.width),
                        static_cast<int>(header.rows()), rowBytes(header), QImage::Format_BGR888);
    QImage picture = stored.convertToFormat(QImage::Format_RGB32);
    return header.height < 0 ? picture : std::move(picture).mirrored();
}

std::array<int, 3> channelBits(QByteArrayView bytes)
{
    const BmpHeader header = readHeader(bytes);
    std::array<int, 3> bits;
    bits.fill(header.bitsPerPixel == 16 ? 5 : 8);
    if (header.compression == BitFields) {
        common::ByteReader masks(bytes.sliced(FileHeaderSize + qsizetype{InfoHeaderSize}));
        for (int &count : bits)
            count = std::min(std::popcount(masks.get<quint32>()), 8);
    }
    return bits;
}

} // namespace graphics
