#include "make_data/catalogue_builder.h"
#include "make_data/icon_file.h"
#include "make_data/message_builder.h"
#include "variables/definition_file.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>

#include <gtest/gtest.h>

namespace {

using make_data::parseTable;
using make_data::Problems;

TEST(Builders, nameTheLineOfEachFault)
{
    const QByteArray goodUnits = "km/h | km/h | value$1$0     | Kilometres per hour\n"
                                 "mph  | mph  | x*0.621371192 | Miles per hour\n";
    const QByteArray goodVariables = "[1 Standard variables]\n"
                                     "2 | SPEED | Speed | 0 | 300 | km/h | always | Road speed.\n";
    constexpr auto Units = "units.txt:3", Variables = "variables.txt:3", Messages = "messages.txt:2";
    const std::tuple<const char *, QByteArray, const char *> faults[] = {
        {Units, "mph | mph | value$1$0 | Twice", "taken by line 2"},
        {Units, "kn | kn | value$1$0", "4 cells"},
        {Units, "kn | kn | value$1 | One coefficient", "\"$\""},
        {Units, "kn | kn | value$1$0x | Stray letter", "\"0x\""},
        {Units, "kn | kn | value$0$0 | Always 0", "does not compile"},
        {Units, "kn | \xCE\xBA | value$1$0 | Greek label", "code page"},
        {Units, "kn | \xB0 | value$1$0 | Not encoded", "UTF-8"},
        {Variables, "3 | ENGINE | Engine | 0 | 9 | furlongs | | Text", "unknown unit \"furlongs\""},
        {Variables, "8001 | ENGINE | Engine | 0 | 9 | mph | | Text", "8001"},
        {Variables, "2 | ENGINE | Engine | 0 | 9 | mph | | Text", "index \"2\" is taken by line 2"},
        {Variables, "3 | SPEED | Engine | 0 | 9 | mph | | Text", "physical name \"SPEED\""},
        {Variables, "3 | ENGINE | speed [again] | 0 | 9 | mph | | Text", "name \"speed [again]\""},
        {Variables, "3 | ENGINE | Engine | 0 | 9 | mph | nevr | Text", "unknown option \"nevr\""},
        {"variables.txt:4", "[4 Own]\n6001 | SUM | Sum | 0 | 9 | | | Text | 2*var_2 | m", "does not compile"},
        {Messages, "8 | Again | 5Hz | 5Hz | 0", "twice"},
        {Messages, "9 | Name | 30Hz | 5Hz | 0", "\"30Hz\""},
        {Messages, "9 | Name | On | 5Hz | 1", "\"5Hz\""},
        {Messages, "9 | " + QByteArray(51, 'n') + " | 5Hz | 5Hz | 0", "longer than 50"},
    };
    for (const auto &[place, line, what] : faults) {
        Problems problems;
        const auto table = [&, at = QByteArray(place), bad = line](const char *name, const QByteArray &good) {
            return parseTable(name, at.startsWith(name) ? good + bad : good, problems);
        };
        make_data::buildCatalogue(table("units.txt", goodUnits), table("variables.txt", goodVariables),
                                  problems);
        make_data::buildMessages(table("messages.txt", "8 | Speed | 100Hz | 25Hz | 0\n"), problems);
        ASSERT_EQ(problems.lines().size(), 1) << what << ": " << qPrintable(problems.lines().join('\n'));
        EXPECT_TRUE(problems.lines()[0].startsWith(place)) << qPrintable(problems.lines()[0]);
        EXPECT_TRUE(problems.lines()[0].contains(what)) << qPrintable(problems.lines()[0]);
    }
}

struct Shipped : testing::Test
{
    make_data::TextTable table(const QString &name)
    {
        QFile file(MORVEL_CATALOGUE_DIR "/" + name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
        return parseTable(name, file.readAll(), problems);
    }

    Problems problems;
};

TEST_F(Shipped, catalogueLoadsBackAsItWasBuilt)
{
    const auto built = make_data::buildCatalogue(table("units.txt"), table("variables.txt"), problems);
    ASSERT_TRUE(problems.none()) << qPrintable(problems.lines().join('\n'));
    variables::Catalogue loaded;
    variables::loadDefinitions(variables::saveDefinitions(built), loaded);
    EXPECT_TRUE(loaded.units == built.units); // no text was lost in the 8-bit code page
    EXPECT_TRUE(loaded.live == built.live);
    const variables::VariableRecord &speed = built.live[2], &own = built.live[6001];
    EXPECT_EQ(speed.DisplayName, "Speed [km/h]");
    EXPECT_EQ(std::tuple(speed.AlwaysOn, speed.DefaultMax, speed.SmoothingTime, speed.MaximumROC),
              std::tuple(true, 300.0F, 0.1F, 200.0F));
    EXPECT_EQ(own.DisplayName, "Total acceleration [g]");
    EXPECT_EQ(own.CustomTransformation, "sqrt(var_0015^2+var_0016^2)");
}

TEST(IconFile, isReadAsItWasDrawn)
{
    QImage small(16, 16, QImage::Format_ARGB32), large(24, 24, QImage::Format_ARGB32);
    small.fill(Qt::green);
    large.fill(QColor(255, 0, 255, 128));
    large.setPixel(1, 23, qRgb(1, 2, 3));
    QByteArray bytes = make_data::iconFile({small, large});
    constexpr int FirstHeight = 6 + 2 * 16 + 8; // of the first bitmap: its own and its mask's
    EXPECT_EQ(bytes.mid(FirstHeight, 4), QByteArray("\x20\0\0\0", 4));
    QBuffer file(&bytes);
    QImageReader reader(&file, "ico");
    EXPECT_EQ(reader.read().convertToFormat(small.format()), small);
    EXPECT_TRUE(reader.jumpToImage(1));
    EXPECT_EQ(reader.read().convertToFormat(large.format()), large);
}

TEST_F(Shipped, messagesCarryTheirRates)
{
    const recorder::MessageTable messages = make_data::buildMessages(table("messages.txt"), problems);
    ASSERT_TRUE(problems.none()) << qPrintable(problems.lines().join('\n'));
    EXPECT_EQ(messages[2], (recorder::MessageEntry{2, "Serial number and firmware", 0, 9, 1})); // On, Off
    EXPECT_EQ(messages[8], (recorder::MessageEntry{8, "Speed", 0, 2, 0}));
    EXPECT_EQ(messages[255], (recorder::MessageEntry{255, "", 9, 9, 0})); // not listed
}

} // namespace
