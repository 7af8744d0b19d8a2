#include "graphics/dial_face.h"
#include "graphics/dial_scale.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

using namespace graphics;

const QColor White(Qt::white), Black(Qt::black), Yellow(Qt::yellow);

OutlineFont shippedFont() { return {"MS Sans Serif", {true}, QStringLiteral(MORVEL_PROGRAM_DIR "/fonts/")}; }

QImage faceOf(const DialLook &look, QSize size = {200, 200}) { return dialFace(look, shippedFont(), size); }

// Whether something is drawn there in about this colour: thin strokes do not fill their pixels.
bool shows(const QImage &picture, const QRect &area, QColor colour)
{
    constexpr QRgb HalfOfEach = 0x808080;
    for (int i = 0; i < area.width() * area.height(); ++i) {
        const QPoint at = area.topLeft() + QPoint(i % area.width(), i / area.width());
        if (((picture.pixel(at) ^ colour.rgb()) & HalfOfEach) == 0)
            return true;
    }
    return false;
}

// Half of the side is 100 pixels: 120 stands at twelve o'clock, 200 at 93 degrees.
TEST(DialFace, TheStandardOneHasTicsLabelsArcAndCaption)
{
    DialLook look;
    look.curCaptionColour.setPacked(0x0000FF);
    const QImage face = faceOf(look);
    EXPECT_TRUE(shows(face, {100, 22, 1, 1}, White));  // the tic of 120
    EXPECT_EQ(face.pixelColor(103, 22), Black);        // beside it
    EXPECT_TRUE(shows(face, {85, 32, 30, 14}, White)); // its label
    EXPECT_EQ(face.pixelColor(177, 111), Yellow);      // between 200 and 220
    EXPECT_EQ(face.pixelColor(22, 100), Black);        // below 160
    EXPECT_TRUE(shows(face, {60, 126, 80, 16}, Qt::red));
    EXPECT_FALSE(shows(face, {60, 150, 80, 50}, Qt::red));
    look.curCaptions = look.curAnnulars = look.curTicLabelsOnOff = 0;
    const QImage bare = faceOf(look);
    EXPECT_FALSE(shows(bare, bare.rect(), Yellow));
    EXPECT_FALSE(shows(bare, bare.rect(), Qt::red));
    EXPECT_FALSE(shows(bare, {51, 51, 98, 98}, White));
}

// The tic of 120 is 20 pixels wide and reaches from 15 to 30 pixels below the upper edge.
TEST(DialFace, TicsHaveFourShapes)
{
    const char *expected[] = {"1111", "0011", "0110", "0001"};
    DialLook look;
    look.curTicWidth = 0.2F;
    for (quint8 style = 0; style < 4; ++style) {
        look.curTicStyle = style;
        const QImage face = faceOf(look);
        std::string seen;
        for (const QPoint point : {QPoint(108, 28), QPoint(107, 16), QPoint(106, 18), QPoint(107, 22)})
            seen += face.pixelColor(point) == White ? '1' : '0';
        EXPECT_EQ(seen, expected[style]) << int(style);
    }
}

// Tics as values at angles.
TEST(DialScale, HasATicAtEachIntervalAndTheTwoEndsWithoutAUsableOne)
{
    const std::tuple<float, float, float, const char *> cases[] = {
        {0, 240, 120, "0@-100 120@0 240@100"},
        {0, 100, 30, "0@-100 30@-40 60@20 90@80"},
        {100, -100, 100, "100@-100 0@0 -100@100"},
        {-0.3F, 0.3F, 0.1F, "-0.3@-100 -0.2@-67 -0.1@-33 0@0 0.1@33 0.2@67 0.3@100"},
        {0, 240, -20, "0@-100 240@100"},
        {0, 240, std::numeric_limits<float>::quiet_NaN(), "0@-100 240@100"},
        {0, 500, 1, "0@-100 500@100"},
        {5, 5, 1, "5@-100 5@100"},
    };
    for (const auto &[min, max, interval, expected] : cases) {
        DialLook look;
        std::tie(look.curMinAngle, look.curMaxAngle) = std::tuple(-100, 100);
        std::tie(look.curMin, look.curMax, look.curTicDelta) = std::tie(min, max, interval);
        QStringList tics;
        for (const Tic &tic : ticsOf(look))
            tics.append(QString("%1@%2").arg(double(float(tic.value))).arg(qRound(tic.angle)));
        EXPECT_EQ(tics.join(' ').toStdString(), expected);
    }
}

TEST(DialFace, LabelsAndCaptionShrinkAndAreLeftOutWhereThereIsNoRoom)
{
    DialLook look;
    look.curAnnulars = look.curCaptions = 0;
    look.curTicInner = look.curTicOuter; // nothing but texts
    const auto texts = [&](int side) { return shows(faceOf(look, {side, side}), {0, 0, side, side}, White); };
    EXPECT_TRUE(texts(100));
    EXPECT_FALSE(texts(30));
    std::tie(look.curMinAngle, look.curMaxAngle) = std::tuple(-180, 180); // ends where it begins
    std::tie(look.curMax, look.curTicDelta) = std::tuple(2.1F, 0.7F);
    EXPECT_TRUE(texts(100));
    look.curTicLabelsOnOff = 0;
    look.curCaptions = 1;
    EXPECT_TRUE(texts(60));
    EXPECT_FALSE(texts(14));
}

TEST(DialAlpha, FollowsTheBackColourOrTheCircle)
{
    DialLook look;
    const QImage face = faceOf(look, {120, 100}), circle = dialAlpha(look, face);
    look.curTransparent = 1;
    const QImage keyed = dialAlpha(look, face);
    for (const QPoint inside : {QPoint(10, 50), QPoint(60, 0), QPoint(60, 11)})
        EXPECT_EQ(circle.pixelColor(inside), White);
    for (const QPoint outside : {QPoint(9, 50), QPoint(20, 10)})
        EXPECT_EQ(circle.pixelColor(outside), Black);
    for (const QPoint point : {QPoint(60, 11), QPoint(60, 50), QPoint(9, 50)}) // on a tic and beside it
        EXPECT_EQ(keyed.pixelColor(point) == White, face.pixelColor(point) != Black);
}

} // namespace
