#pragma once

#include "layoutfile/record_types.h"

#include <optional>
#include <variant>

namespace layoutfile {

using RecordBody =
    std::variant<VideoSourceRecord, BitmapRecord, TextTagRecord, DigitalDisplayRecord, BarGraphRecord,
                 GaugeRecord, VariableEntry, ChapterRecord, LapChaptersRecord, AutoStartRecord,
                 AutoStopRecord, VideoStandardRecord, BitRateRecord, MessageStorageRateRecord, GearsRecord,
                 TrackMapRecord, FontDirectoryRecord, ImagePlanesRecord, FontRastersRecord, ProgramsRecord,
                 TrackMapUnderlayRecord, MessageOutputRateRecord, ThumbnailRecord, LongTextRecord,
                 ExtendedFontDirectoryRecord, ExtendedFontRastersRecord, SpecialIconRecord, CustomDialRecord>;

struct LayoutRecord
{
    qint16 object = 1;
    RecordBody body;

    RecordType type() const;
};

// Adds the payload's bytes to the end of `out`.
void encodePayload(const RecordBody &body, common::ByteWriter &out);

// The length that the frame states for a payload: its own, but for the two types whose stated size is off on
// purpose (special icon and custom dial). Throws RunTimeError for more than the frame can state.
qint32 statedSize(const RecordBody &body, qsizetype payloadSize);

// Reads the payload of a record of this type from `reader`, whose frame stated `size` bytes. Types with a
// fixed field list pay no attention to `size`. Numbers that are not finite read as 0. Nothing when the bytes
// end too early or the type is unknown.
std::optional<RecordBody> decodePayload(qint16 type, qint32 size, common::ByteReader &reader);

} // namespace layoutfile
