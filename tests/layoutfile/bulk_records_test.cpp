#include "common/run_time_error.h"
#include "layoutfile/font_list.h"
#include "layoutfile/layout_bytes.h"
#include "layoutfile/loading.h"
#include "platform/file_replace.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using namespace layoutfile;
using graphics::AlphaPlane;
using graphics::PlanePicture;
using graphics::Planes;

template <typename Record>
std::vector<QByteArray> payloads(const RecordGroups &groups)
{
    std::vector<QByteArray> found;
    for (const LayoutRecord &record : groups.of(Record::Type)) {
        found.push_back(encodePayload(record.body));
        EXPECT_EQ(record.object, static_cast<qint16>(found.size()));
    }
    return found;
}

BitmapRecord bitmap(qint16 width, qint16 height)
{
    BitmapRecord record;
    record.width = width;
    record.height = height;
    return record;
}

const Planes Even{4, 2, "YYYYyyyy", "Uu", "Vv"}, Odd{3, 3, "123456789", "U", "V"};
const AlphaPlane EvenAlpha{4, 2, "aAaAaAaA"}, OddAlpha{3, 3, "987654321"};
const QByteArray BothImages = "YYYYyyyyUuVvaAaAaAaA123456789UV987654321";

TEST(Images, standBackToBackInTheOrderOfTheBitmaps)
{
    RecordGroups groups;
    ImageList().addRecord(groups);
    EXPECT_TRUE(groups.of(RecordType::ImagePlanes).empty());
    ImageList images;
    images.add(PlanePicture::fromFile(Even, EvenAlpha));
    images.add(PlanePicture::fromFile(Odd, OddAlpha));
    images.addRecord(groups);
    EXPECT_EQ(payloads<ImagePlanesRecord>(groups), std::vector{BothImages});
}

TEST(Images, areCutByTheSizesOfTheBitmapsAndNeverBeyondTheRecord)
{
    constexpr qint16 Largest = 32767;
    const Planes none;
    const AlphaPlane noAlpha, opaque{3, 3, QByteArray(9, '\xFF')};
    struct
    {
        const char *name;
        QByteArray planes;
        BitmapRecord first;
        Planes expected;
        AlphaPlane expectedAlpha;
        Planes expectedOdd;
        AlphaPlane expectedOddAlpha;
    } const cases[] = {
        {"whole", BothImages, bitmap(4, 2), Even, EvenAlpha, Odd, OddAlpha},
        {"bytes that nobody names", BothImages + "more", bitmap(4, 2), Even, EvenAlpha, Odd, OddAlpha},
        {"cut in the last alpha plane", BothImages.chopped(1), bitmap(4, 2), Even, EvenAlpha, Odd, opaque},
        {"cut in the first chroma plane", BothImages.first(9), bitmap(4, 2), none, noAlpha, none, noAlpha},
        {"no planes", {}, bitmap(4, 2), none, noAlpha, none, noAlpha},
        {"the largest size", BothImages, bitmap(Largest, Largest), none, noAlpha, none, noAlpha},
        {"no width", BothImages.sliced(20), bitmap(0, 2), none, noAlpha, Odd, OddAlpha},
        {"negative sides", BothImages.sliced(20), bitmap(-4, -2), none, noAlpha, Odd, OddAlpha},
    };
    for (const auto &c : cases) {
        const StoredImages images =
            storedImages({{7, c.first}, {3, bitmap(3, 3)}, {1, ImagePlanesRecord{Bulk{c.planes}}}});
        ASSERT_EQ(images.size(), 2U);
        const PlanePicture &first = images.at(7).picture, &second = images.at(3).picture;
        EXPECT_TRUE(first.planes() == c.expected) << c.name;
        EXPECT_TRUE(first.alpha() == c.expectedAlpha) << c.name;
        EXPECT_TRUE(second.planes() == c.expectedOdd) << c.name;
        EXPECT_TRUE(second.alpha() == c.expectedOddAlpha) << c.name;
        EXPECT_EQ(std::pair(images.at(7).number, images.at(3).number), std::pair(0, 2)) << c.name;
    }
}

TEST(Loading, findsWhatBelongsToARecordByTypeAndObjectNumber)
{
    const std::vector<LayoutRecord> records{{2, LongTextRecord{{"Oil pressure, rear"}, 18}},
                                            {2, TrackMapUnderlayRecord{1, 2, 128}},
                                            {2, bitmap(4, 2)},
                                            {1, ImagePlanesRecord{Bulk{BothImages}}}};
    const platform::Folders folders;
    const platform::Stamp stamp = test::stamp({}, {});
    const Loading load(records, folders, stamp, {});
    ASSERT_TRUE(load.find<LongTextRecord>(2) && load.find<TrackMapUnderlayRecord>(2) && load.imageOf(2));
    EXPECT_EQ(load.find<LongTextRecord>(2)->text.text, "Oil pressure, rear");
    EXPECT_EQ(load.imageOf(2)->picture.planes(), Even);
    EXPECT_FALSE(load.find<LongTextRecord>(1) || load.find<GaugeRecord>(2) || load.imageOf(1));
}

// These files back to back, and for each its id, length and offset.
template <typename Entry, typename Rasters>
void expectFiles(const RecordGroups &groups, const QStringList &paths)
{
    std::vector<QByteArray> entries;
    QByteArray rasters;
    for (const QString &path : paths) {
        const QByteArray file = platform::readFile(path);
        entries.push_back(test::littleEndian(static_cast<quint32>(entries.size()), 1) +
                          test::littleEndian(static_cast<quint32>(file.size()), 4) +
                          test::littleEndian(static_cast<quint32>(rasters.size()), 4));
        rasters += file;
    }
    EXPECT_EQ(payloads<Entry>(groups), entries);
    EXPECT_EQ(payloads<Rasters>(groups), std::vector{rasters});
}

graphics::FontRequest font(const char *face, int size) { return {face, size, {true}}; }

TEST(FontList, storesEachFontOnceWithBothItsFiles)
{
    const QTemporaryDir root;
    platform::Folders folders;
    folders.program = MORVEL_PROGRAM_DIR "/";
    folders.applicationData = root.path() + '/';
    graphics::FontStore store(folders);
    FontList fonts(&store);
    const auto named = [&fonts](const char *face, int size) {
        const FontList::Name name = fonts.add(font(face, size), 9);
        return std::pair<int, QByteArray>(name.id, name.file.text);
    };
    EXPECT_EQ(named("Arial", 8), std::pair(0, QByteArray("Arial B 8.qlg")));
    EXPECT_EQ(named("Arial", 9), std::pair(1, QByteArray("Arial B 9.qlg")));
    EXPECT_EQ(named("Arial", 8).first, 0);
    EXPECT_TRUE(fonts.replaced().isEmpty());
    EXPECT_EQ(named("No Such Face", 8), std::pair(2, QByteArray("No Such Face B 8.qlg")));
    EXPECT_EQ(fonts.replaced(), QStringList("No Such Face B 8.qlg"));

    RecordGroups groups;
    fonts.addRecords(groups);
    const graphics::FontRequest stored[] = {font("Arial", 8), font("Arial", 9), font("QL Sans Serif", 8)};
    expectFiles<FontDirectoryRecord, FontRastersRecord>(
        groups,
        {store.standardPath(stored[0]), store.standardPath(stored[1]), store.standardPath(stored[2])});
    expectFiles<ExtendedFontDirectoryRecord, ExtendedFontRastersRecord>(
        groups,
        {store.extendedPath(stored[0]), store.extendedPath(stored[1]), store.extendedPath(stored[2])});
}

TEST(FontList, countsWithoutAStoreAndAsFarAsAByteReaches)
{
    FontList fonts(nullptr);
    for (int size = 0; size < 256; ++size)
        EXPECT_EQ(fonts.add(font("Arial", size), 9).id, size);
    EXPECT_THROW(fonts.add(font("Arial", 256), 9), common::RunTimeError);
    RecordGroups groups;
    fonts.addRecords(groups);
    for (const RecordType type : {RecordType::FontDirectory, RecordType::FontRasters,
                                  RecordType::ExtendedFontDirectory, RecordType::ExtendedFontRasters})
        EXPECT_TRUE(groups.of(type).empty());
}

} // namespace
