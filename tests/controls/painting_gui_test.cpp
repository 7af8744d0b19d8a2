#include "support/block_font.h"
#include "support/design_window.h"

namespace {

using controls::BarGraph;
using controls::Gauge;
using controls::OverlayControl;
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

// The needle is 65 pixels long and `on` lies 50 or 60 pixels from its pivot.
TEST(GaugePainting, TheNeedleStandsWhereTheScalePutsIt)
{
    const struct
    {
        const char *name;
        bool ntsc;
        float value;
        QPoint on, off; // from the pivot
    } cases[] = {
        {"beyond the scale", false, 200, {0, 60}, {0, -20}},
        {"squeezed on NTSC", true, 160, {43, 21}, {43, 25}},
        {"squeezed downwards", true, 200, {0, 50}, {0, 60}},
    };
    const QPoint pivot(65, 65);
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        DesignWindow w;
        if (c.ntsc)
            w.run("mnuNTSC");
        Gauge &gauge = w.addGauge(300, 200);
        gauge.write("newDefaultVal", c.value);
        EXPECT_EQ(seen(w, gauge, pivot + c.on), Red);
        EXPECT_EQ(seen(w, gauge, pivot + c.off), c.ntsc ? test::NtscGround : test::PalGround);
    }
}

TEST(GaugePainting, TheCanvasAndTheControlsBelowAreSeenBesideAWideNeedle)
{
    DesignWindow w;
    BarGraph &bar = w.addBar(320, 210);
    bar.write("newDefaultVal", 100);
    bar.redraw();
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
    w.run("mnuNTSC");
    EXPECT_EQ(seen(w, gauge, {40, 100}), test::NtscGround);
}

// A needle may be wider than its box, at rest and on its way.
TEST(GaugePainting, NothingOfANeedleStaysBehind)
{
    DesignWindow w;
    Gauge &gauge = w.addGauge(300, 200);
    gauge.write("newPointerWidth", 200);
    gauge.redraw();
    const QPoint beside = placeOf(gauge) + QPoint(-5, 70);
    EXPECT_EQ(w.shown(beside), Red);
    gauge.write("newPointerWidth", 2);
    gauge.redraw();
    EXPECT_EQ(w.shown(beside), test::PalGround);
    gauge.write("newPointerWidth", 200);
    gauge.redraw();
    QTest::mousePress(&w.canvas(), Qt::LeftButton, {}, placeOf(gauge) + QPoint(70, 110));
    QTest::mouseMove(&w.canvas(), {650, 330});
    EXPECT_EQ(w.shown(beside), test::PalGround);
    EXPECT_EQ(w.shown(placeOf(gauge) + QPoint(-5, 70)), Red);
    QTest::mouseRelease(&w.canvas(), Qt::LeftButton, {}, {650, 330});
}

// The bar is 120 by 20 pixels.
TEST(BarPainting, TheBarGrowsFromItsZeroEnd)
{
    const struct
    {
        const char *name;
        int barType;
        float min, max, value;
        QPoint filled, rest;
    } cases[] = {
        {"rightwards", 0, 0, 100, 50, {57, 10}, {63, 10}}, {"reversed", 0, 100, 0, 50, {63, 10}, {57, 10}},
        {"upwards", 1, -10, 10, 0, {60, 12}, {60, 7}},     {"downwards", 1, 10, -10, 0, {60, 7}, {60, 12}},
        {"a quarter", 0, 0, 100, 25, {28, 1}, {32, 1}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        DesignWindow w;
        BarGraph &bar = w.addBar(300, 200);
        bar.write("newBarType", c.barType);
        bar.write("newMin", c.min);
        bar.write("newMax", c.max);
        bar.write("newDefaultVal", c.value);
        EXPECT_EQ(seen(w, bar, c.filled), Red);
        // On the canvas also an empty bar can be seen.
        const QPoint rest = placeOf(bar) + QPoint(5, 5) + c.rest;
        EXPECT_EQ(w.shown(rest), QColor(0x2f, 0x3b, 0x4a));
        EXPECT_EQ(w.design().renderPreview().pixelColor(rest), test::PalGround);
    }
}

// Blocks of 8 x 10 pixels and 2 between them; a blank draws nothing and is as wide as a "j".
TEST(TextPainting, CoversWhatLiesBelowByItsOpacityAndMovesUpOnNtsc)
{
    DesignWindow w;
    test::writeBlockFont(w.world, {"Block", 9, {}});
    controls::TextTag &tag = w.addTag(300, 460);
    for (const auto &[writer, value] : {std::pair<const char *, controls::PropertyValue>{"newFont", "Block"},
                                        {"newTText", "a b"},
                                        {"newForeColour", 255},
                                        {"newAlfa", 128}})
        tag.write(writer, value);
    tag.AssignProperties();
    EXPECT_EQ(tag.innerRect(), QRect(305, 465, 30, 10));
    EXPECT_EQ(seen(w, tag, {7, 9}), QColor(128, 64, 0)); // 128/255 of red upon a green of 128
    for (const QPoint &ground : {QPoint(8, 5), QPoint(14, 5), QPoint(28, 5)})
        EXPECT_EQ(seen(w, tag, ground), test::PalGround);
    tag.moveTo(300 * 15, 470 * 15);
    w.run("mnuNTSC");
    EXPECT_EQ(test::placeOf(tag), QPoint(300, 460));
    EXPECT_EQ(tag.get().curCenterY, 465);
}

// No left edge in a record is negative: it would be a right one.
TEST(TextMoves, ANudgeEndsWhereTheRecordDoes)
{
    DesignWindow w;
    test::writeBlockFont(w.world, {"Block", 9, {}});
    controls::TextTag &tag = w.addTag(0, 100);
    tag.write("newFont", "Block");
    tag.AssignProperties();
    for (const auto &[align, least] : {std::pair{0, 0}, {1, -109}}) { // eleven characters
        tag.write("newTAlign", align);
        for (int i = 0; i < 120; ++i)
            test::press(w, Qt::Key_Left);
        tag.AssignProperties(); // is no jump
        EXPECT_EQ(test::placeOf(tag), QPoint(least - 5, 100));
    }
}

// A background that its user chose for something else.
TEST(Canvas, ABackgroundOfAnotherSizeStandsAtTheTopLeftAndOneTooLargeIsRefused)
{
    DesignWindow w;
    const QString file = w.world.state.folders.inUserData("PALVIDEOBackImg.bmp");
    const auto picture = [&](QSize size) {
        QImage ground(size, QImage::Format_RGB32);
        ground.fill(Blue);
        EXPECT_TRUE(ground.save(file));
        w.run("mnuPAL");
        return w.design().renderPreview();
    };
    for (const QSize size : {QSize(100, 700), QSize(5000, 10)}) {
        const QImage shown = picture(size);
        EXPECT_EQ(shown.size(), QSize(720, 576));
        EXPECT_EQ(shown.pixelColor(99, 575), Blue);
        EXPECT_EQ(shown.pixelColor(100, 0), QColor(Qt::black));
    }
}

TEST(Preview, HasTheOrderOfTheLayoutAndTheCanvasItsStack)
{
    DesignWindow w(150);
    BarGraph &lower = w.addBar(300, 200);
    BarGraph &upper = w.addBar(300, 200);
    lower.write("newDefaultVal", 100);
    upper.write("newDefaultVal", 100);
    upper.write("newColour", 0xFF0000);
    EXPECT_EQ(seen(w, upper, {30, 10}), Blue);
    w.canvas().choose(lower);
    const QPoint corner = placeOf(lower);
    const QPoint inside = corner + QPoint(35, 15);
    EXPECT_EQ(w.shown(inside), Red);
    EXPECT_EQ(w.design().renderPreview().pixelColor(inside), Blue);
    EXPECT_EQ(w.design().renderPreview().pixelColor(corner + QPoint(2, 15)), test::PalGround); // no frame
    EXPECT_NE(w.shown({20, 30}), test::PalGround); // a dot of the grid
    EXPECT_EQ(w.design().renderPreview().pixelColor(20, 30), test::PalGround);

    upper.write("newAlfa", 0);
    lower.write("newAlfa", 128);
    const QColor mixed = w.design().renderPreview().pixelColor(corner + QPoint(35, 17));
    EXPECT_NEAR(mixed.red(), 128, 1);
    EXPECT_NEAR(mixed.green(), 64, 1);
    DesignWindow fine(1); // a grid finer than the pixels
    EXPECT_NE(fine.shown({20, 31}), test::PalGround);
}

} // namespace
