#include "layoutfile/layout_bytes.h"
#include "layoutfile/settings_records.h"

#include <gtest/gtest.h>

namespace {

using namespace layoutfile;
using namespace test;

constexpr qint32 Largest = 0x7FFFFFFF, Smallest = -0x7FFFFFFF - 1;

QByteArray gauge(const QByteArray &before) { return withRecord(before, 6, 41, 1, QByteArray(41, 'g')); }
QByteArray standard(const QByteArray &before) { return withRecord(before, 12, 1, 1, bytes("00")); }
QByteArray thumbnail(const QByteArray &before) { return withRecord(before, 23, 4, 1, "jpeg"); }
// The second icon, of 8 x 2 pixels, whatever size is stated.
QByteArray icon(const QByteArray &before, int size)
{
    return withRecord(before, 27, size, 1, bytes("02 0800 0200 0000 0000 FF") + QByteArray(24, 'i'));
}
// The frame alone: sync word, type, size, object 1.
QByteArray frame(const char *type, qint32 size)
{
    return bytes("DCEBFA00") + bytes(type) + littleEndian(static_cast<quint32>(size), 4) + bytes("0100");
}

TEST(DamagedFile, onlyAWholeFileIsAccepted)
{
    const QByteArray whole = withCrc(standard(gauge(header())));
    EXPECT_TRUE(IsValidVGL(whole));
    std::vector<QByteArray> cases{{}, withCrc({}), header(), whole.first(80), whole.chopped(1), whole + 'x'};
    for (const qsizetype place : {qsizetype{0}, qsizetype{15}, qsizetype{70}, whole.size() - 1}) {
        cases.push_back(whole);
        cases.back()[place] = static_cast<char>(whole[place] ^ 0x10);
    }
    for (const QByteArray &file : cases)
        EXPECT_FALSE(IsValidVGL(file)) << file.toHex().toStdString();
}

TEST(DamagedFile, whatCanBeReadIsReadAndNothingElse)
{
    using Types = std::vector<int>;
    const QByteArray one = gauge(header());
    const QByteArray stray = bytes("DCEBFA00 1D00 'none' DCEBFA00 FFFF 'none' DCEBFA00 0000 'none'");
    const auto stating = [](const char *size) { return gauge(header()).replace(59, 4, bytes(size)); };
    const QByteArray largeIcon = frame("1B00", 42) + bytes("01 FF7F FF7F") + QByteArray(64, 'i');
    const QByteArray negativeIcon = frame("1B00", 42) + bytes("01 F8FF FEFF") + QByteArray(29, 'i');
    const std::tuple<const char *, QByteArray, Types> cases[] = {
        {"garbage between records", standard(one + "garbage between." + bytes("DCEB FA01")), {6, 12}},
        {"garbage that is no multiple of four", standard(gauge(one + "ab")), {6}},
        {"fonts and what does not exist", standard(withRecord(one, 19, 4, 1, "font") + stray), {6, 12}},
        {"a stated size that nobody needs", standard(stating("FFFFFF7F")), {6, 12}},
        {"an icon of another size than it states", standard(icon(header(), 4)), {27, 12}},
        {"an icon of the largest size", standard(one + largeIcon), {6}},
        {"an icon of negative sides", standard(one + negativeIcon), {6}},
        {"more planes than the file holds", standard(one + frame("1200", Largest)), {6}},
        {"cut in a payload", one + standard(gauge({})).first(30), {6}},
        {"cut in a frame", one + frame("0600", 41).first(9), {6}},
        {"the CRC serves as the last sum", one.chopped(2), {6}},
    };
    for (const auto &[name, content, expected] : cases) {
        Types types;
        for (const LayoutRecord &record : parseLayout(withCrc(content)))
            types.push_back(static_cast<int>(record.type()));
        EXPECT_EQ(types, expected) << name;
    }
}

TEST(DamagedFile, theThumbnailWalkEndsWhereSizesCannotBeTrusted)
{
    const std::tuple<const char *, QByteArray, QByteArray> cases[] = {
        {"after other records", standard(thumbnail(standard(gauge(header())))), "jpeg"},
        {"after garbage", thumbnail(gauge(header()) + "four"), ""},
        {"after an icon", thumbnail(icon(header(), 34)), ""},
        {"before an icon", icon(thumbnail(header()), 42), "jpeg"},
        {"larger than the file", header() + frame("1700", Largest) + "jpeg", ""},
        {"of a negative size", header() + frame("1700", Smallest) + "jpeg", ""},
        {"none", standard(header()), ""},
    };
    for (const auto &[name, content, jpeg] : cases)
        EXPECT_EQ(extractThumbnail(withCrc(content)), jpeg) << name;
    EXPECT_TRUE(extractThumbnail(thumbnail(header()) + "four").isEmpty()); // no good CRC
}

TEST(DamagedFile, settingsThatAreMissingOrOfNothingThatExistsStayButForTheChapters)
{
    recorder::RecorderSettings before;
    before.LapChapterActive = 1;
    before.autoStart = {2, 1, 5, 3};
    before.autoStop = {3, 2, 6, 4};
    before.CurrentBitRate = 4;
    before.encodePattern = recorder::EncodePattern::IP;
    before.MessageTable.fill({7, "GPS", 2, 3, 0});
    before.VideoType = recorder::VideoStandard::Ntsc;
    recorder::RecorderSettings settings = before;
    settings.ChapterList = {{1, 0, 0, 2, 0, 1}};
    QByteArray file = header();
    for (const int object : {0, 257, -1, -32768})
        file = withRecord(withRecord(file, 14, 2, object, bytes("0909")), 22, 2, object, bytes("0909"));
    file = withRecord(file, 13, 2, 1, bytes("00 01"));                    // a rate below 0
    file = withRecord(file, 15, 10, 1, bytes("00000000 00 00 00000000")); // no gear at all
    const auto records = parseLayout(icon(file, 42));                     // no such icon
    EXPECT_EQ(records.size(), 11U);
    EXPECT_EQ(settingsFromRecords(records, settings), recorder::VideoStandard::Ntsc);
    EXPECT_EQ(settings, before);

    const QByteArray eight = bytes("0000803F 08") + QByteArray(64, '\x3F') + bytes("00 00000000");
    settingsFromRecords(parseLayout(withRecord(header(), 15, 74, 1, eight)), settings);
    EXPECT_EQ(settings.GearTable.size(), 7U);
}

TEST(DamagedFile, settingsThatNoDialogCouldShowBecomeOnesThatItCan)
{
    QByteArray file = header();
    // Quiet NaN 0000C07F, infinities 0000807F and 000080FF.
    file = withRecord(file, 8, 15, 1, bytes("0A 0000C07F 02 02000000 FF 0000807F"));
    file = withRecord(file, 8, 15, 2, bytes("09 0000803F 01 02000000 01 00000040")); // the last entries
    file = withRecord(file, 9, 1, 1, bytes("0A"));
    file = withRecord(file, 10, 10, 1, bytes("02000000 000080FF 03 FF"));
    file = withRecord(file, 11, 10, 1, bytes("02000000 0000803F 02 FF"));
    file = withRecord(file, 13, 2, 1, bytes("07 03"));
    for (const int object : {1, 2, 3})
        file = withRecord(withRecord(file, 14, 2, object, bytes("05 0A")), 22, 2, object, bytes("05 FF"));
    file = withRecord(file, 15, 18, 1, bytes("0000C07F 01 0000C07F 0000807F 02 00000000"));

    recorder::RecorderSettings settings, expected;
    settings.encodePattern = recorder::EncodePattern::I;
    for (const quint8 kind : std::array<quint8, 3>{0, 1, 2}) {
        const quint8 off = kind == 0 ? 9 : 0;
        settings.MessageTable[kind].kind = kind;
        expected.MessageTable[kind] = {5, {}, off, off, kind};
    }
    expected.ChapterList = {{0, 0, 0, 2, 0, 0}, {9, 1, 1, 2, 1, 2}};
    expected.LapChapterActive = 1;
    expected.autoStart = {2, 0, 0, 255};
    expected.autoStop = {2, 2, 1, 255};
    expected.CurrentBitRate = 6;
    expected.GearTable = {{0, 0}};
    settingsFromRecords(parseLayout(file), settings);
    EXPECT_EQ(settings, expected);
}

} // namespace
