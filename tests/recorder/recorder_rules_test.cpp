#include "common/run_time_error.h"
#include "recorder/bit_rate.h"
#include "recorder/chapter_rows.h"
#include "recorder/gear_bands.h"
#include "recorder/message_rates.h"

#include <gtest/gtest.h>

namespace {

using namespace recorder;

TEST(BitRate, tellsWhatItMeans)
{
    const QString pcOnly = "can be only viewed on PC, cannot be used for DVD generation";
    struct Case
    {
        int rate;
        double usage; // (450 x rate + 81.25) / 1024 GB
        bool isTooHigh;
        std::optional<QString> note;
    };
    for (const Case &c : {
             Case{1, 0.52, false, std::nullopt},
             Case{2, 0.96, false, "2 Mbps - Low quality, okay for analysis not for presentation"},
             Case{5, 2.28, false,
                  "5 Mbps - Standard quality, recommended for analysis and \"okay\" for DVDs"},
             Case{7, 3.16, true, "7 Mbps - High quality, " + pcOnly},
             Case{8, 3.59, true, "8 Mbps - High quality, " + pcOnly},
             Case{12, 5.35, true,
                  "12 Mbps - Extreme quality, only required when broadcast quality cameras are used, " +
                      pcOnly},
             Case{13, 5.79, true, std::nullopt},
         }) {
        SCOPED_TRACE(c.rate);
        EXPECT_DOUBLE_EQ(usagePerHour(c.rate), c.usage);
        EXPECT_EQ(isTooHighForDvd(c.rate), c.isTooHigh);
        EXPECT_EQ(bitRateNote(c.rate), c.note);
    }
    EXPECT_EQ(multiplexRate(), 7); // of 7.11
}

// 256 messages at 10 Hz, every third one of the same kind.
MessageTable someMessages()
{
    MessageTable table;
    for (int i = 0; i < 256; ++i)
        table[static_cast<std::size_t>(i)] = {static_cast<quint8>(i), QStringLiteral("Message %1").arg(i), 3,
                                              3, static_cast<quint8>(i % 3)};
    return table;
}

TEST(MessageRates, areSetForAllMessagesAtOnce)
{
    struct Case
    {
        void (*set)(MessageTable &);
        int storage;
        QList<int> output; // of the messages 2, 3, 4, 8, 18, 104 and 255; 2, 8 and 104 are needed
    };
    for (const Case &c : {Case{&setStorageToMaximum, 0, {3, 3, 3, 3, 3, 3, 3}},
                          Case{&setOutputToMaximum, 3, {0, 9, 0, 0, 0, 0, 0}},
                          Case{&setOutputToTypical, 3, {4, 9, 4, 2, 2, 9, 4}},
                          Case{&disableOutput, 3, {0, 9, 9, 0, 9, 0, 9}}}) {
        MessageTable table = someMessages();
        c.set(table);
        QList<int> output;
        for (const std::size_t number : {2, 3, 4, 8, 18, 104, 255}) {
            output.append(table[number].outputRate);
            EXPECT_EQ(table[number].storageRate, c.storage);
        }
        EXPECT_EQ(output, c.output);
    }
}

TEST(MessageRates, areTextsByKind)
{
    EXPECT_EQ(rateText(6, 0), "0.5Hz");
    EXPECT_EQ(rateText(9, 0), "Disabled");
    EXPECT_EQ(rateText(5, 1), "On");
    EXPECT_EQ(rateText(9, 2), "Off");
}

TEST(MessageRates, areFoundByNumberOrName)
{
    MessageTable table = someMessages();
    table[40].name = "Speed";
    table[90].name = "GPS speed";
    struct Case
    {
        QString typed;
        int from;
        std::optional<int> row;
    };
    for (const Case &c : {Case{"1", 50, 1}, Case{"104", 1, 104}, Case{"256", 0, std::nullopt},
                          Case{"sp", 41, 40}, // a beginning, round the end, before a middle
                          Case{"S SP", 0, 90}, Case{"message 2", 3, 20}, Case{"xyz", 0, std::nullopt}})
        EXPECT_EQ(findMessage(table, c.typed, c.from), c.row) << c.typed.toStdString();
}

variables::VariableTable someVariables()
{
    variables::VariableTable table(variables::LastIndex + 1);
    for (const int index : {2, 10}) {
        table[index].IndexNumber = index;
        table[index].DisplayName = "name";
    }
    return table;
}

TEST(ChapterRows, closeUpAndComeBackExactly)
{
    const float third = 1.0F / 3;
    const std::vector<ChapterCondition> stored{
        {9, third, 1, 2, 1, third}, {0, 0, 0, 10, 1, 5}, {3, 3.4028235E38F, 0, 2, 0, -1}};
    ChapterRows rows = chapterRows(stored, ",");
    rows.insert(rows.begin() + 1, emptyChapterRow(","));
    EXPECT_EQ(rows[0].value1.text(), "0,33333334");
    EXPECT_EQ(chapterTypeText(*rows[0].type) + signText(rows[0].sign1), "10<=");
    EXPECT_EQ(chapterConditions(rows, someVariables()), stored);
    rows[2].isTicked = true;
    removeTicked(rows);
    rows[0].value2.type("-12,5");
    EXPECT_EQ(chapterConditions(rows, someVariables()),
              (std::vector<ChapterCondition>{{9, third, 1, 2, 1, -12.5F}, stored[2]}));
    tickAll(rows);
    removeTicked(rows);
    EXPECT_EQ(rows.size(), 1U); // the empty one
}

TEST(ChapterRows, areRefusedWhereACellCannotBeStored)
{
    struct Case
    {
        qint32 variable;
        QString value;
    };
    for (const Case &c : {Case{0, "1"}, Case{3, "1"}, Case{-1, "1"}, Case{8000, "1"}, Case{99999, "1"},
                          Case{2, ""}, Case{2, "-"}, Case{2, "1,2,3"}, Case{2, "12x"}, Case{2, "1E39"}}) {
        ChapterRows rows{emptyChapterRow(".")};
        rows[0].type = 0;
        rows[0].variable = c.variable;
        rows[0].value2.type(c.value);
        EXPECT_THROW(chapterConditions(rows, someVariables()), common::RunTimeError) << c.value.toStdString();
    }
}

TEST(Gears, areOneToSeven)
{
    const auto count = [](const char *text) { return static_cast<int>(gearCount(text).value_or(0)); };
    EXPECT_EQ(
        (QList<int>{count("0"), count("1"), count("7"), count("8"), count("-1"), count("x"), count("")}),
        (QList<int>{0, 1, 7, 0, 0, 0, 0}));
}

TEST(Gears, getTheirBandsFromTheRatios)
{
    struct Case
    {
        GearRatios ratios;
        std::size_t count;
        std::vector<GearLimits> bands;
    };
    // With a final drive of 4 and 2 m, a ratio of 1 is 30 kph at 1000 rpm.
    const std::array<double, MostGears> seven{3, 2, 1.5, 1, 0.75, 0.5, 0.25};
    for (const Case &c : {
             Case{{seven, 4, 2},
                  7,
                  {{7, 12.5F}, {12.5F, 17.5F}, {17.5F, 25}, {25, 35}, {35, 50}, {50, 90}, {90, 171.42857F}}},
             Case{{{3, 2}, 4, 2}, 2, {{7, 12.5F}, {12.5F, 8}}}, // up to half of 15 and 1
             Case{{{3}, 4, 2}, 1, {{7, 5.5F}}},
             Case{{{}, 4, 2}, 2, {{0.7F, 1}, {1, 1}}},
             Case{{seven, 0, 2}, 2, {{0, 0}, {0, 0}}},
             Case{{seven, 4, -3}, 1, {{0, 0}}},
             Case{{{20, 5}, 10, 60}, 1, {{21, 45}}}, // as 10, and 50 m: 30 and 60
             Case{{{-1, 5}, 10, 50}, 1, {{0.7F, 30.5F}}},
         })
        EXPECT_EQ(gearBands(c.ratios, c.count), c.bands);
}

} // namespace
