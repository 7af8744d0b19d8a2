#include "layoutfile/layout_bytes.h"

#include <gtest/gtest.h>

namespace {

using namespace layoutfile;
using test::bytes;

struct Row
{
    int type;
    RecordBody body;
    const char *notation = nullptr; // none where the round trips of the families have the bytes
    qsizetype statedSize = payload().size();

    QByteArray payload() const { return notation ? bytes(notation) : test::payloadOf(body); }
};

constexpr common::Yuv White{235, 128, 127}, Red{81, 90, 240};

// clang-format off
// One record of each type, in the order of a file. No two neighbouring fields hold the same.
std::vector<Row> rows()
{
    return {
        {1, VideoSourceRecord{}}, {2, BitmapRecord{}}, {3, TextTagRecord{}}, {4, DigitalDisplayRecord{}},
        {5, BarGraphRecord{100, 200, 350, -4, 255, 20, Red, 100, -1.5F, 0.5F, 3, 2, 1, 2},
         "6400 C800 5E01 FCFF FF 14 515AF0 0000C842 0000C0BF 0000003F 03000000 02000000 0000803F 00000040"},
        {6, GaugeRecord{}},
        {7, VariableEntry{2, 1, 0.5F, 100, 300, 9}, "02000000 01 0000003F 0000C842 2C010000 09"},
        {8, ChapterRecord{9, -1.5F, 1, 3, 0, 100}, "09 0000C0BF 01 03000000 00 0000C842"},
        {9, LapChaptersRecord{3}, "03"},
        {10, AutoStartRecord{2, 100, 2, 5}, "02000000 0000C842 02 05"},
        {11, AutoStopRecord{3, 0.5F, 1, 10}, "03000000 0000003F 01 0A"},
        {12, VideoStandardRecord{1}, "01"},
        {13, BitRateRecord{13, 2}, "0D02"},
        {14, MessageStorageRateRecord{255, 8}, "FF08"},
        {15, GearsRecord{2, {0, 0.5F}, {1, 2}, 1, 15},
         "00000040 02 00000000 0000003F 0000803F 00000040 01 0F000000"},
        {16, TrackMapRecord{}},
        {17, FontDirectoryRecord{1, 300, 70000}, "01 2C010000 70110100"},
        {25, ExtendedFontDirectoryRecord{2, 5, 256}, "02 05000000 00010000"},
        {18, ImagePlanesRecord{Bulk{"planes"}}, "'planes'"}, {19, FontRastersRecord{}},
        {26, ExtendedFontRastersRecord{}}, {20, ProgramsRecord{}}, {21, TrackMapUnderlayRecord{}},
        {22, MessageOutputRateRecord{7, 9}, "0709"},
        {23, ThumbnailRecord{Bulk{bytes("FFD8 'jpeg' FFD9")}}, "FFD8 'jpeg' FFD9"},
        {24, LongTextRecord{{"Oil pressure in the gearbox, 2"}, 30}, "'Oil pressure in the gearbox, 2' 00 1E"},
        // states 10 + 2 x 16 although the smaller chroma planes make 34
        {27, SpecialIconRecord{1, 8, 2, 30, -4, 128, "YYYYYYYYYYYYYYYYUUUUVVVV"},
         "01 0800 0200 1E00 FCFF 80 'YYYYYYYYYYYYYYYYUUUUVVVV'", 42},
        // states half of its 166 bytes
        {28, CustomDialRecord{3, 4, 300, -3, 200, 100, 2, 300, 5, Red, -120, 120, -1.5F, 100, 0.5F, 255, 2,
            1, 2, 0.5F, 0.25F, 1, White, {"Arial"}, 1, 0, 12, 0, 1, 2, 0.5F, -1.5F, 0x00112233,
            {"kilometres per hour, on wheels"}, 1, 1, 2, 0.5F, 0.25F, 0x00FF8000, 0x004A3B2F, 1},
         "0300 0400 2C01 FDFF C800 6400 02000000 2C01 0500 515AF0 88FF 7800 0000C0BF 0000C842 0000003F "
         "FF 02 0000803F 00000040 0000003F 0000803E 01 EB807F 'Arial                         ' 01 00 "
         "0C00 00 01 02 0000003F 0000C0BF 33221100 'kilometres per hour, on wheels' 01 0000803F "
         "00000040 0000003F 0000803E 0080FF00 2F3B4A00 01", 83},
    };
}
// clang-format on

TEST(RecordBytes, aFileIsHeaderRecordsWithSumsAndCrcInTheFormatsOrder)
{
    QByteArray file = test::header();
    std::vector<Row> all = rows();
    for (const Row &row : all)
        file =
            test::withRecord(file, row.type, static_cast<int>(row.statedSize), row.type * 9, row.payload());
    std::reverse(all.begin(), all.end());
    RecordGroups groups;
    for (const Row &row : all) {
        EXPECT_EQ(test::payloadOf(row.body).toHex(' '), row.payload().toHex(' ')) << "type " << row.type;
        groups.add(row.body, static_cast<qint16>(row.type * 9));
    }
    EXPECT_EQ(test::fileOf(groups, test::stamp("driver", "pitwall")).toHex(), test::withCrc(file).toHex());
}

TEST(RecordBytes, theHeaderStampsClockUserAndComputerAndCountsInTheSumOfAnIcon)
{
    // 256 luma bytes: the stated 522 + 12 bytes are more than header, frame and payload have.
    const QByteArray planes = QByteArray(256, '\xF0') + QByteArray(128, '\x80');
    RecordGroups groups;
    groups.add(SpecialIconRecord{1, 32, 8, 0, 0, 255, planes});
    const std::array<const char *, 3> cases[] = {
        {"", "B\u00FCro \u20AC \u0416", "00 '                   ' 'B' FC 'ro ' 80 20 '?' 00 '           '"},
        {"nineteen characters", "twenty characters ..", "'nineteen characters' 00 'twenty characters .' 00"},
    };
    for (const auto &[user, computer, names] : cases) {
        const QByteArray header = bytes("'QLVGL' 030000 1F0C05 173B") + bytes(names);
        const QByteArray icon = bytes("01 2000 0800 0000 0000 FF") + planes;
        EXPECT_EQ(test::fileOf(groups, test::stamp(user, computer)),
                  test::withCrc(test::withRecord(header, 27, 522, 1, icon)))
            << names;
    }
    EXPECT_EQ(modCRC("123456789"), 0xCBF43926U); // the check value of the standard
}

} // namespace
