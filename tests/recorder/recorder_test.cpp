#include "recorder/recorder_settings.h"

#include <gtest/gtest.h>

namespace {

using namespace recorder;

QByteArray row(char number, const QByteArray &name, const char *rates, char padding = ' ')
{
    return QByteArray(1, number) + name.leftJustified(50, padding) + QByteArray(rates, 3);
}

TEST(MessageTable, rowsThatTheFileLacksStayAsTheyWere)
{
    const MessageEntry before{7, "before", 1, 2, 1};
    MessageTable table;
    table.fill(before);
    // The last row misses its last byte.
    readMessageTable(row(9, "Message", "\x04\x09\x02").repeated(100) + QByteArray(53, 'x'), table);
    EXPECT_EQ(table[0], (MessageEntry{9, "Message", 4, 9, 2}));
    EXPECT_EQ(table[99], table[0]);
    EXPECT_EQ(table[100], before);
}

TEST(MessageTable, rowsKeepTheirBytesAndLoseTheirPadding)
{
    const QByteArray fifty(50, 'n');
    const QByteArray file = row('\xFF', "\xC9tat \x80", "\x05\x05\x01") +
                            row(0, "Nul", "\x00\x00\x00", '\0') + row(2, fifty, "\x09\x08\xFD") +
                            row('z', QByteArray(50, 'z'), "\x01\x02\x02").repeated(300); // more than it has
    MessageTable table;
    readMessageTable(file, table);
    EXPECT_EQ(table[0], (MessageEntry{255, "État €", 5, 5, 1})); // an event with a rate code stays one
    EXPECT_EQ(table[1].name, "Nul");
    EXPECT_EQ(table[2], (MessageEntry{2, QString(fifty), 9, 8, 253}));
    table[3].name = QString(60, 'w');
    const QByteArray written = writeMessageTable(table);
    ASSERT_EQ(written.size(), 13824); // 256 rows of 54
    EXPECT_EQ(written.left(216), file.left(54) + row(0, "Nul", "\x00\x00\x00") + file.mid(108, 54) +
                                     row('z', QByteArray(50, 'w'), "\x01\x02\x02"));
}

TEST(NewLayout, putsEverythingBackButTheVideoStandard)
{
    RecorderSettings settings, expected; // as at the start of the tool
    settings.GearTable = {{1, 2}};
    settings.MessageTable[8].outputRate = 9;
    expected.MessageTable[8].outputRate = 2;
    settings.VideoType = expected.VideoType = VideoStandard::Ntsc;
    resetForNewLayout(settings, expected.MessageTable);
    EXPECT_TRUE(settings == expected);
}

} // namespace
