#include "fuzz/targets.h"
#include "layoutfile/layout_bytes.h"
#include "layoutfile/settings_from_records.h"

#include <QDir>

#include <gtest/gtest.h>

namespace {

using namespace layoutfile;
using test::bytes;
using test::header;
using test::withCrc;
using test::withRecord;

constexpr qint32 Largest = 0x7FFFFFFF, Smallest = -0x7FFFFFFF - 1;

QByteArray gauge(QByteArray before)
{
    return withRecord(std::move(before), 6, 41, 1, QByteArray(41, '\x01'));
}
QByteArray standard(QByteArray before) { return withRecord(std::move(before), 12, 1, 1, bytes("00")); }
// The frame alone: sync word, type, size, object 1.
QByteArray frame(const char *type, qint32 size)
{
    return bytes("DCEBFA00") + bytes(type) + test::littleEndian(static_cast<quint32>(size), 4) +
           bytes("0100");
}

QByteArray flipped(QByteArray file, qsizetype place)
{
    file[place] = static_cast<char>(file[place] ^ 0x10);
    return file;
}

using Types = std::vector<int>;

Types typesIn(const QByteArray &file)
{
    Types types;
    for (const LayoutRecord &record : parseLayout(file))
        types.push_back(static_cast<int>(record.type()));
    return types;
}

TEST(DamagedFile, onlyAWholeFileIsAccepted)
{
    const QByteArray whole = withCrc(standard(gauge(header())));
    EXPECT_TRUE(IsValidVGL(whole));
    const QByteArray cases[] = {{},
                                withCrc({}),
                                header(),
                                whole.first(80),
                                whole.chopped(1),
                                whole + 'x',
                                flipped(whole, 0),
                                flipped(whole, 15),
                                flipped(whole, 70),
                                flipped(whole, whole.size() - 1)};
    for (const QByteArray &file : cases) {
        EXPECT_FALSE(IsValidVGL(file)) << file.toHex().toStdString();
        EXPECT_TRUE(extractThumbnail(file).isEmpty()) << file.toHex().toStdString();
    }
}

TEST(DamagedFile, whatCanBeReadIsReadAndNothingElse)
{
    const QByteArray one = gauge(header());
    const QByteArray stray = bytes("DCEBFA00 1D00 'none' DCEBFA00 FFFF 'none' DCEBFA00 0000 'none'");
    const struct
    {
        const char *name;
        QByteArray content;
        Types types;
    } cases[] = {
        {"a file of one byte", "x", {}},
        {"shorter than a header", header().first(30), {}},
        {"garbage between records", standard(one + "garbage between." + bytes("DCEB FA01")), {6, 12}},
        {"garbage that is no multiple of four", standard(gauge(one + "ab")), {6}},
        {"types that do not exist", standard(one + stray), {6, 12}},
        {"a stated size that nobody needs",
         standard(withRecord(header(), 6, 41, 1, QByteArray(41, 'g')).replace(59, 4, bytes("FFFFFF7F"))),
         {6, 12}},
        {"a negative one", standard(gauge(header()).replace(59, 4, bytes("FFFFFFFF"))), {6, 12}},
        {"more planes than the file holds", standard(one + frame("1200", Largest)), {6}},
        {"a negative number of planes", standard(one + frame("1200", -1)), {6}},
        {"the least number of planes", standard(one + frame("1200", Smallest)), {6}},
        {"an icon of the largest size", standard(one + frame("1B00", Largest) + QByteArray(64, 'i')), {6}},
        {"an icon of the least size", standard(one + frame("1B00", Smallest) + QByteArray(64, 'i')), {6}},
        {"255 gears in room for two",
         one + frame("0F00", 26) + bytes("0000803F FF") + QByteArray(25, 'g'),
         {6}},
        {"cut in a payload", one + standard(gauge({})).first(30), {6}},
        {"cut in a frame", one + frame("0600", 41).first(9), {6}},
        {"cut behind a sync word", one + bytes("DCEBFA00"), {6}},
        {"the CRC serves as the last sum", one.chopped(2), {6}},
    };
    for (const auto &test : cases) {
        const QByteArray file = withCrc(test.content);
        EXPECT_TRUE(IsValidVGL(file)) << test.name;
        EXPECT_EQ(typesIn(file), test.types) << test.name;
    }
}

TEST(DamagedFile, theThumbnailWalkEndsWhereSizesCannotBeTrusted)
{
    const auto thumbnail = [](QByteArray before, const QByteArray &jpeg) {
        return withRecord(std::move(before), 23, static_cast<int>(jpeg.size()), 1, jpeg);
    };
    const QByteArray icon = withRecord(header(), 27, 42, 1, QByteArray(34, 'i'));
    const struct
    {
        const char *name;
        QByteArray content;
        QByteArray jpeg;
    } cases[] = {
        {"behind other records", standard(thumbnail(standard(gauge(header())), "jpeg")), "jpeg"},
        {"behind garbage", thumbnail(gauge(header()) + "four", "jpeg"), ""},
        {"behind an icon", thumbnail(icon, "jpeg"), ""},
        {"before an icon", withRecord(thumbnail(header(), "jpeg"), 27, 42, 1, QByteArray(34, 'i')), "jpeg"},
        {"larger than the file", header() + frame("1700", Largest) + "jpeg", ""},
        {"of a negative size", header() + frame("1700", Smallest) + "jpeg", ""},
        {"none", standard(header()), ""},
    };
    for (const auto &test : cases)
        EXPECT_EQ(extractThumbnail(withCrc(test.content)), test.jpeg) << test.name;
}

TEST(DamagedFile, settingsThatNoRecorderHoldsAreLeftOut)
{
    recorder::RecorderSettings before;
    before.CurrentBitRate = 4;
    before.encodePattern = recorder::EncodePattern::IP;
    before.MessageTable.fill({7, "GPS", 2, 3, 0});
    before.VideoType = recorder::VideoStandard::Ntsc;
    recorder::RecorderSettings settings = before;
    QByteArray file = header();
    for (const char *object : {"0000", "0101", "FFFF", "0080"}) { // 0, 257, -1 and the least
        file += bytes("DCEBFA00 0E00 02000000") + bytes(object) + bytes("0909 0000");
        file += bytes("DCEBFA00 1600 02000000") + bytes(object) + bytes("0909 0000");
    }
    file = withRecord(file, 13, 2, 1, bytes("00 03")); // a rate below 0, an unknown pattern
    file = withRecord(file, 15, 10, 1, bytes("00000000 00 00 00000000")); // no gear at all
    file = withRecord(file, 27, 42, 1, bytes("02 0800 0200 0000 0000 FF") + QByteArray(24, 'i'));
    const auto records = parseLayout(withCrc(file));
    EXPECT_EQ(records.size(), 11U);
    EXPECT_EQ(settingsFromRecords(records, settings), recorder::VideoStandard::Ntsc);
    EXPECT_EQ(settings, before);

    const QByteArray eight = bytes("0000803F 08") + QByteArray(64, '\x3F') + bytes("00 00000000");
    settingsFromRecords(parseLayout(withCrc(withRecord(header(), 15, 74, 1, eight))), settings);
    EXPECT_EQ(settings.GearTable.size(), 7U);
}

TEST(DamagedFile, whatAFileLacksStaysAsItWasButForTheChapters)
{
    recorder::RecorderSettings before;
    before.LapChapterActive = 1;
    before.autoStart = {2, 1, 5, 3};
    before.autoStop = {3, 2, 6, 4};
    before.CurrentBitRate = 9;
    before.GearTable = {{0, 1}, {1, 2}};
    recorder::RecorderSettings settings = before;
    settings.ChapterList = {{1, 0, 0, 2, 0, 1}};
    settingsFromRecords(parseLayout(withCrc(gauge(header()))), settings);
    EXPECT_EQ(settings, before);
}

TEST(Corpus, keepsItsPromises)
{
    const auto replay = [](const char *target, bool (*run)(QByteArrayView)) {
        QDir folder(QStringLiteral(FUZZ_CORPUS "/") + QLatin1String(target));
        const QStringList names = folder.entryList(QDir::Files);
        EXPECT_FALSE(names.isEmpty()) << target;
        for (const QString &name : names) {
            QFile file(folder.filePath(name));
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            EXPECT_TRUE(run(file.readAll())) << target << ' ' << name.toStdString();
        }
    };
    replay("fuzz_layout", &fuzz::layout);
    replay("fuzz_definitions", &fuzz::definitions);
}

} // namespace
