#include "layoutfile/layout_file.h"

#include "common/code_page.h"
#include "layoutfile/modCRC.h"

#include <algorithm>
#include <numeric>

namespace layoutfile {

namespace {

using common::ByteReader;
using common::ByteWriter;

constexpr qint32 Sync = 0x00FAEBDC;
constexpr char Magic[] = "QLVGL";
constexpr std::array<quint8, 3> Version{3, 0, 0};
constexpr int NameWidth = 20;
constexpr qsizetype HeaderSize = 53;
constexpr qsizetype FrameSize = 12; // sync, type, size, object
constexpr qsizetype CrcSize = 4;
constexpr int LastTrustedType = 26; // after it come the two types whose stated size is off

constexpr std::array WritingOrder{RecordType::VideoSource,
                                  RecordType::Bitmap,
                                  RecordType::TextTag,
                                  RecordType::DigitalDisplay,
                                  RecordType::BarGraph,
                                  RecordType::Gauge,
                                  RecordType::Variable,
                                  RecordType::Chapter,
                                  RecordType::LapChapters,
                                  RecordType::AutoStart,
                                  RecordType::AutoStop,
                                  RecordType::VideoStandard,
                                  RecordType::BitRate,
                                  RecordType::MessageStorageRate,
                                  RecordType::Gears,
                                  RecordType::TrackMap,
                                  RecordType::FontDirectory,
                                  RecordType::ExtendedFontDirectory,
                                  RecordType::ImagePlanes,
                                  RecordType::FontRasters,
                                  RecordType::ExtendedFontRasters,
                                  RecordType::Programs,
                                  RecordType::TrackMapUnderlay,
                                  RecordType::MessageOutputRate,
                                  RecordType::Thumbnail,
                                  RecordType::LongText,
                                  RecordType::SpecialIcon,
                                  RecordType::CustomDial};
static_assert(WritingOrder.size() == std::variant_size_v<RecordBody>);

void putHeader(ByteWriter &out, const platform::Stamp &stamp)
{
    const QDateTime now = stamp.now();
    out.put(QByteArrayView(Magic, 5));
    for (const quint8 part : Version)
        out.put(part);
    out.put(static_cast<quint8>(now.date().day()));
    out.put(static_cast<quint8>(now.date().month()));
    out.put(static_cast<quint8>(now.date().year() % 100));
    out.put(static_cast<quint8>(now.time().hour()));
    out.put(static_cast<quint8>(now.time().minute()));
    out.putFixedText(common::toCodePage(stamp.userName), NameWidth);
    out.putFixedText(common::toCodePage(stamp.computerName), NameWidth);
}

// Over as many bytes before the record's end as its frame states; a stretch that would begin before the file
// begins at its first byte.
quint16 recordSum(const QByteArray &file, qsizetype statedSize)
{
    const qsizetype length = std::min(statedSize + FrameSize, file.size());
    const auto *begin = reinterpret_cast<const quint8 *>(file.constData()) + (file.size() - length);
    return static_cast<quint16>(std::accumulate(begin, begin + length, quint32{0}));
}

void putRecord(ByteWriter &out, const LayoutRecord &record)
{
    out.put(Sync);
    out.put(static_cast<qint16>(record.type()));
    const qsizetype placeOfSize = out.size();
    out.put(qint32{});
    out.put(record.object);
    const qsizetype begin = out.size();
    encodePayload(record.body, out);
    const qint32 size = statedSize(record.body, out.size() - begin);
    out.putOver(placeOfSize, size);
    out.put(recordSum(out.bytes(), size));
}

bool isRecreated(qint16 type)
{
    switch (static_cast<RecordType>(type)) {
    case RecordType::FontDirectory:
    case RecordType::FontRasters:
    case RecordType::ExtendedFontDirectory:
    case RecordType::ExtendedFontRasters:
        return true;
    default:
        return false;
    }
}

} // namespace

qint16 RecordGroups::add(RecordBody body)
{
    LayoutRecord record{1, std::move(body)};
    std::vector<LayoutRecord> &group = m_groups[slot(record.type())];
    record.object = static_cast<qint16>(group.size() + 1);
    group.push_back(std::move(record));
    return group.back().object;
}

void RecordGroups::add(RecordBody body, qint16 object)
{
    LayoutRecord record{object, std::move(body)};
    m_groups[slot(record.type())].push_back(std::move(record));
}

LayoutWriter::LayoutWriter(const platform::Stamp &stamp) { putHeader(m_out, stamp); }

void LayoutWriter::put(const RecordGroups &groups, RecordType last,
                       const std::function<void(const LayoutRecord &)> &written)
{
    for (bool isLast = false; !isLast; ++m_next) {
        for (const LayoutRecord &record : groups.of(WritingOrder[m_next])) {
            putRecord(m_out, record);
            written(record);
        }
        isLast = WritingOrder[m_next] == last;
    }
}

QByteArray LayoutWriter::finish(const RecordGroups &groups)
{
    put(groups, WritingOrder.back(), [](const LayoutRecord &) {});
    m_out.put(modCRC(m_out.bytes()));
    return m_out.bytes();
}

bool IsValidVGL(QByteArrayView file)
{
    if (file.size() <= CrcSize)
        return false;
    const qsizetype length = file.size() - CrcSize;
    return ByteReader(file.sliced(length)).get<quint32>() == modCRC(file.first(length));
}

std::vector<LayoutRecord> parseLayout(QByteArrayView file)
{
    std::vector<LayoutRecord> records;
    ByteReader in(file);
    in.get(std::min(HeaderSize, file.size()));
    while (in.remaining() >= CrcSize) {
        if (in.get<qint32>() != Sync)
            continue;
        const auto type = in.get<qint16>();
        if (type < 1 || static_cast<std::size_t>(type) > WritingOrder.size())
            continue;
        const auto size = in.get<qint32>();
        const auto object = in.get<qint16>();
        auto body = decodePayload(type, size, in);
        if (!body)
            break;
        in.get<quint16>(); // the record's sum is not verified
        if (!isRecreated(type))
            records.push_back({object, std::move(*body)});
    }
    return records;
}

QByteArray extractThumbnail(QByteArrayView file)
{
    QByteArray thumbnail;
    if (!IsValidVGL(file))
        return thumbnail;
    ByteReader in(file);
    in.get(std::min(HeaderSize, file.size()));
    while (in.remaining() >= FrameSize) {
        const auto sync = in.get<qint32>();
        const auto type = in.get<qint16>();
        if (sync != Sync || type < 1 || type > LastTrustedType)
            break;
        const auto size = in.get<qint32>();
        in.get<qint16>(); // object
        const QByteArrayView payload = in.get(qsizetype{size});
        in.get<quint16>(); // sum
        if (in.failed())
            break;
        if (static_cast<RecordType>(type) == RecordType::Thumbnail)
            thumbnail = payload.toByteArray();
    }
    return thumbnail;
}

} // namespace layoutfile
