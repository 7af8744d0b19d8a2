#include "support/block_font.h"
#include "support/design_window.h"

namespace {

using namespace controls;
using test::DesignWindow;
using test::placeOf;

const QColor Red(Qt::red);
const QColor Blue(Qt::blue);

// A pixel of a control, counted from the corner of its inner area, on the canvas and in the recorder's
// picture: they show the same.
QColor seen(DesignWindow &w, OverlayControl &control, QPoint point)
{
    control.redraw(); // writers store, and nothing else
    const QPoint at = placeOf(control) + QPoint(5, 5) + point;
    const QColor shown = w.shown(at);
    EXPECT_EQ(w.design().renderPreview().pixelColor(at), shown) << at.x() << ", " << at.y();
    return shown;
}

TEST(GaugePainting, TheCanvasAndTheControlsBelowAreSeenBesideAWideNeedle)
{
    DesignWindow w;
    w.addBar(320, 210).write("newDefaultVal", 100);
    Gauge &gauge = w.addGauge(300, 200);
    gauge.write("newDefaultVal", 80);
    gauge.write("newPointerWidth", 20);
    gauge.write("newColour", 0xFF0000);
    EXPECT_EQ(seen(w, gauge, {65 + 8, 22}), Blue);
    EXPECT_EQ(seen(w, gauge, {40, 20}), Red);
    EXPECT_EQ(seen(w, gauge, {40, 100}), test::PalGround);
    gauge.write("newMaxAngle", gauge.get().curMinAngle); // an empty scale has no needle
    EXPECT_EQ(seen(w, gauge, {65 + 8, 22}), Red);
    test::drag(w, placeOf(gauge) + QPoint(70, 110), {{0, 40}});
    EXPECT_EQ(seen(w, gauge, {40, 22}), test::PalGround);
}

// A needle may be wider than its box, at rest and on its way.
TEST(GaugePainting, NothingOfANeedleStaysAfterItHasGone)
{
    DesignWindow w;
    Gauge &gauge = w.addGauge(300, 200);
    const QPoint beside = placeOf(gauge) + QPoint(-5, 70);
    for (const int width : {200, 2, 200}) {
        gauge.write("newPointerWidth", width);
        gauge.redraw();
        EXPECT_EQ(w.shown(beside), width == 2 ? test::PalGround : Red);
    }
    QTest::mousePress(&w.canvas(), Qt::LeftButton, {}, placeOf(gauge) + QPoint(70, 110));
    QTest::mouseMove(&w.canvas(), {650, 330});
    EXPECT_EQ(w.shown(beside), test::PalGround);
    EXPECT_EQ(w.shown(placeOf(gauge) + QPoint(-5, 70)), Red);
    QTest::mouseRelease(&w.canvas(), Qt::LeftButton, {}, {650, 330});
}

// Blocks of 8 x 10 pixels and 2 between them; a blank draws nothing and is as wide as a "j".
TEST(TextPainting, CoversWhatLiesBelowByItsOpacityAndGoesWhereItsRecordCanSay)
{
    DesignWindow w;
    test::writeBlockFont(w.world, {"Block", 9, {}});
    TextTag &tag = w.addTag(300, 460);
    for (const auto &[writer, value] : {std::pair<const char *, PropertyValue>{"newFont", "Block"},
                                        {"newTText", "a b"},
                                        {"newForeColour", 255},
                                        {"newAlfa", 128}})
        tag.write(writer, value);
    tag.AssignProperties();
    EXPECT_EQ(tag.innerRect(), QRect(305, 465, 30, 10));
    EXPECT_EQ(seen(w, tag, {7, 9}), QColor(128, 64, 0)); // 128/255 of red upon a green of 128
    for (const QPoint &ground : {QPoint(8, 5), QPoint(14, 5), QPoint(28, 5)})
        EXPECT_EQ(seen(w, tag, ground), test::PalGround);
    tag.moveTo(0, 470 * 15);
    w.run("mnuNTSC");
    EXPECT_EQ(tag.get().curCenterY, 465);
    // No left edge in a record is negative: it would be a right one.
    for (const auto &[align, least] : {std::pair{0, 0}, {1, -29}}) {
        tag.write("newTAlign", align);
        for (int i = 0; i < 40; ++i)
            test::press(w, Qt::Key_Left);
        tag.AssignProperties(); // is no jump
        EXPECT_EQ(placeOf(tag), QPoint(least - 5, 460));
    }
}

TEST(Preview, HasTheOrderOfTheLayoutAndTheCanvasItsStack)
{
    DesignWindow w(150);
    BarGraph &lower = w.addBar(300, 200), &upper = w.addBar(300, 200);
    lower.write("newDefaultVal", 100);
    upper.write("newDefaultVal", 100);
    upper.write("newColour", 0xFF0000);
    EXPECT_EQ(seen(w, upper, {30, 10}), Blue);
    w.canvas().choose(lower);
    const auto recorded = [&w](QPoint at) { return w.design().renderPreview().pixelColor(at); };
    const QPoint inside(335, 215), frame(302, 215), dot(20, 30);
    EXPECT_EQ(w.shown(inside), Red);
    EXPECT_EQ(recorded(inside), Blue);
    EXPECT_EQ(recorded(frame), test::PalGround);
    EXPECT_NE(w.shown(dot), test::PalGround); // of the grid
    EXPECT_EQ(recorded(dot), test::PalGround);

    upper.write("newAlfa", 0);
    lower.write("newAlfa", 128);
    EXPECT_NEAR(recorded(inside).red(), 128, 1);
    EXPECT_NEAR(recorded(inside).green(), 64, 1);
    lower.write("newDefaultVal", 0);
    lower.redraw();
    EXPECT_EQ(w.shown(inside), QColor(0x2f, 0x3b, 0x4a)); // also an empty bar can be seen
    DesignWindow fine(1);                                 // a grid finer than the pixels
    EXPECT_NE(fine.shown({20, 31}), test::PalGround);
}

} // namespace
