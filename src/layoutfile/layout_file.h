#pragma once

#include "layoutfile/record_codec.h"
#include "platform/stamp.h"

#include <algorithm>
#include <functional>

namespace layoutfile {

// The records of a layout while it is being put together, in groups by type.
class RecordGroups
{
public:
    // Adds to the end of its group and answers the object number, its place from 1.
    qint16 add(RecordBody body);
    // The same under an object number of its own.
    void add(RecordBody body, qint16 object);

    const std::vector<LayoutRecord> &of(RecordType type) const { return m_groups[slot(type)]; }

private:
    static std::size_t slot(RecordType type) { return static_cast<std::size_t>(type); }

    std::array<std::vector<LayoutRecord>, std::variant_size_v<RecordBody> + 1> m_groups;
};

// Puts a file together front to back: the header with its stamp, the records in the format's order, each with
// its sum, the CRC.
class LayoutWriter
{
public:
    explicit LayoutWriter(const platform::Stamp &stamp);

    // Goes on with the groups up to that of `last`; `written` is called after each record.
    void put(const RecordGroups &groups, RecordType last,
             const std::function<void(const LayoutRecord &)> &written);
    // The rest of the groups, and the end of the file.
    QByteArray finish(const RecordGroups &groups);

private:
    common::ByteWriter m_out;
    std::size_t m_next = 0; // place in the format's order
};

// Whether the last four bytes are the CRC of all before them. That is all the validation there is.
bool IsValidVGL(QByteArrayView file);

// All records in file order. Any bytes may be passed: what is no record is skipped four bytes at a time, a
// record that the end cuts off ends the walk. Fonts are left out, the tool makes them again.
std::vector<LayoutRecord> parseLayout(QByteArrayView file);

// The bytes of a bulk record that a layout holds once; of the last one where it holds several, and none where
// it holds none.
template <typename Record>
QByteArray bulkOf(const std::vector<LayoutRecord> &records)
{
    const auto isIt = [](const LayoutRecord &record) { return record.type() == Record::Type; };
    const auto last = std::find_if(records.rbegin(), records.rend(), isIt);
    return last == records.rend() ? QByteArray() : std::get<Record>(last->body).data.bytes;
}

// The JPEG of the thumbnail record; empty when the file is invalid or has none.
QByteArray extractThumbnail(QByteArrayView file);

} // namespace layoutfile
