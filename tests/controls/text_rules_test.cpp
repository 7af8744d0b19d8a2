#include "controls/digital_display/digital_display.h"
#include "controls/text_tag/modTexttypes.h"
#include "controls/text_tag/text_tag.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

using namespace controls;
using recorder::VideoStandard;

TEST(DisplayText, isANumberOrATimeWithTheMarkOfTheDisplay)
{
    constexpr float Infinite = std::numeric_limits<float>::infinity();
    const std::tuple<float, bool, quint8, quint8, const char *> cases[] = {
        {3725.5F, true, 1, 0, "01:02:05.5"},  {90000, true, 0, 0, "25:00:00"},
        {59.999F, true, 2, 0, "00:00:59.99"}, {1e-5F, true, 2, 0, "00:00:00.00"},
        {1.5e7F, true, 1, 1, "4166:40:00.0"}, {-61, true, 0, 0, "00:-01:-01"},
        {1.5F, false, 2, 1, "1,50"},          {1.5F, false, 0, 1, "1.5"},
        {Infinite, true, 1, 0, "INF"}};
    for (const auto &[value, isTime, places, mark, text] : cases) {
        DigitalDisplayValues values;
        values.curDefaultVal = value;
        values.curTimeFormat = isTime;
        values.curDecPlaces = places;
        values.curDecMark = mark;
        EXPECT_EQ(displayText(values).toStdString(), text);
    }
}

TEST(TagText, isThePatternOfAFieldOrAsTypedAndCutToThirtyCharactersOfTheCodePage)
{
    EXPECT_EQ(fieldText(5, TextTypes[5]) + fieldText(11, TextTypes[11]), "dd/mm/yyhh:mm:ss");
    EXPECT_EQ(fieldText(0, "Oil (front)"), "Oil (front)");
    EXPECT_EQ(storedText(QString(31, 'x')), QByteArray(30, 'x'));
    EXPECT_EQ(storedText(QString::fromUtf8("10 °C\0 Ω", 10)), "10 \xB0"
                                                              "C ?");
}

// A text of 100 x 10 pixels, with its frame 110 x 20.
TEST(TextPlace, namesTheLeftEdgeOrTheRightOneAndStaysOnTheCanvas)
{
    using enum TextAlign;
    const std::tuple<TextAlign, QPoint, VideoStandard, QPoint> cases[] = {
        {Right, {300, 200}, VideoStandard::Pal, {300, 200}},
        {Left, {-700, 200}, VideoStandard::Pal, {600, 200}},
        {Right, {650, 570}, VideoStandard::Pal, {615, 561}},
        {Right, {-720, 470}, VideoStandard::Ntsc, {615, 465}},
        {Right, {-40, -3}, VideoStandard::Pal, {-60, -3}},
        {Left, {-40, 0}, VideoStandard::Pal, {0, 0}}, // a left edge is never negative
    };
    for (const auto &[align, typed, standard, stands] : cases) {
        TextTagValues values;
        values.align = static_cast<quint8>(align);
        values.curCenterX = static_cast<qint16>(typed.x());
        values.curCenterY = static_cast<qint16>(typed.y());
        for (int apply = 0; apply < 2; ++apply) { // the second one moves nothing
            place(values, {100, 10}, standard, {});
            EXPECT_EQ(QPoint(values.curCenterX, values.curCenterY), stands) << typed.x();
        }
        EXPECT_EQ(pixelRect(values.box, {}), QRect(stands - QPoint(5, 5), QSize(110, 20)));
    }
}

} // namespace
