#include "controls/digital_display/digital_display.h"
#include "controls/text_tag/modTexttypes.h"
#include "controls/text_tag/text_tag.h"

#include <gtest/gtest.h>

namespace {

using namespace controls;
using recorder::VideoStandard;

TEST(DisplayText, isANumberOrATimeWithTheMarkOfTheDisplay)
{
    constexpr float Infinite = std::numeric_limits<float>::infinity();
    const struct
    {
        float value;
        int time, places, mark;
        const char *text;
    } cases[] = {
        {3725.5F, 1, 1, 0, "01:02:05.5"},
        {90000, 1, 0, 0, "25:00:00"},
        {3600000, 1, 2, 1, "1000:00:00.00"},
        {59.999F, 1, 2, 0, "00:00:59.99"},
        {1e-5F, 1, 2, 0, "00:00:00.00"},
        {1.5e7F, 1, 1, 0, "4166:40:00.0"},
        {-61, 1, 0, 0, "00:-01:-01"},
        {1.5F, 0, 2, 1, "1,50"},
        {1.5F, 0, 0, 1, "1.5"},
        {0.125F, 0, 2, 0, "0.13"},
        {Infinite, 1, 1, 0, "INF"},
    };
    for (const auto &c : cases) {
        DigitalDisplayValues values;
        values.curDefaultVal = c.value;
        values.curTimeFormat = static_cast<quint8>(c.time);
        values.curDecPlaces = static_cast<quint8>(c.places);
        values.curDecMark = static_cast<quint8>(c.mark);
        EXPECT_EQ(displayText(values).toStdString(), c.text);
    }
}

TEST(FieldText, isThePatternOfADateOrTimeAndElseTheName)
{
    for (const auto &[row, text] :
         {std::pair{5, "dd/mm/yy"}, {9, "dd mon yyyy"}, {11, "hh:mm:ss"}, {12, "String 5"}})
        EXPECT_EQ(fieldText(row, TextTypes[static_cast<std::size_t>(row)]), text);
    EXPECT_EQ(fieldText(5, "dd/mm/yy"), "dd/mm/yy");
    EXPECT_EQ(fieldText(0, "Oil (front)"), "Oil (front)");
}

TEST(StoredText, isCutToThirtyCharactersOfTheCodePage)
{
    EXPECT_EQ(storedText(QString(31, 'x')), QByteArray(30, 'x'));
    EXPECT_EQ(storedText(QString::fromUtf8("10 °C\0 Ω", 10)), "10 \xB0"
                                                              "C ?");
}

// A text of 100 x 10 pixels, with its frame 110 x 20.
TEST(TextPlace, namesTheLeftEdgeOrTheRightOneAndStaysOnTheCanvas)
{
    const struct
    {
        const char *name;
        TextAlign align;
        int x, y;
        VideoStandard standard;
        int standsX, standsY;
    } cases[] = {
        {"left edge", TextAlign::Right, 300, 200, VideoStandard::Pal, 300, 200},
        {"right edge", TextAlign::Left, -700, 200, VideoStandard::Pal, 600, 200},
        {"pulled in", TextAlign::Right, 650, 570, VideoStandard::Pal, 615, 561},
        {"pulled up", TextAlign::Right, -720, 470, VideoStandard::Ntsc, 615, 465},
        {"over the left edge", TextAlign::Right, -40, -3, VideoStandard::Pal, -60, -3},
        {"a left edge is never negative", TextAlign::Left, -40, 0, VideoStandard::Pal, 0, 0},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        TextTagValues values;
        values.align = static_cast<quint8>(c.align);
        values.curCenterX = static_cast<qint16>(c.x);
        values.curCenterY = static_cast<qint16>(c.y);
        for (int apply = 0; apply < 2; ++apply) { // the second one moves nothing
            place(values, {100, 10}, c.standard, {});
            EXPECT_EQ(QPoint(values.curCenterX, values.curCenterY), QPoint(c.standsX, c.standsY));
        }
        const auto twips = [](int pixels) { return 15 * static_cast<float>(pixels) - 75; };
        EXPECT_EQ(values.box, (Box{twips(c.standsX), twips(c.standsY), 1650, 300}));
    }
}

} // namespace
