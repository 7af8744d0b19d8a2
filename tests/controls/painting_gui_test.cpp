#include "support/design_window.h"
#include "surface/overlay_picture.h"

namespace {

using controls::BarGraph;
using controls::Gauge;
using controls::OverlayControl;
using test::DesignWindow;

const QColor Red(Qt::red);
const QColor Blue(Qt::blue);

// A pixel of a control as it stands on the canvas, counted from the corner of its inner area.
QColor seen(OverlayControl &control, QPoint point)
{
    return control.grab().toImage().pixelColor(point + QPoint(5, 5));
}

// The same place of the recorder's picture.
QColor previewed(DesignWindow &w, const OverlayControl &control, QPoint point)
{
    return w.design().renderPreview().pixelColor(control.pos() + QPoint(5, 5) + point);
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
        const QColor ground = c.ntsc ? test::NtscGround : test::PalGround;
        EXPECT_EQ(seen(gauge, pivot + c.on), Red);
        EXPECT_EQ(previewed(w, gauge, pivot + c.on), Red);
        EXPECT_EQ(seen(gauge, pivot + c.off), ground);
        EXPECT_EQ(previewed(w, gauge, pivot + c.off), ground);
    }
}

TEST(GaugePainting, TheCanvasAndTheControlsBelowAreSeenBesideAWideNeedle)
{
    DesignWindow w;
    BarGraph &bar = w.addBar(320, 210);
    bar.write("newDefaultVal", 100);
    Gauge &gauge = w.addGauge(300, 200);
    gauge.write("newDefaultVal", 80);
    gauge.write("newPointerWidth", 20);
    gauge.write("newColour", 0xFF0000);
    EXPECT_EQ(seen(gauge, {65 + 8, 20}), Blue);
    EXPECT_EQ(seen(gauge, {40, 20}), Red);
    EXPECT_EQ(seen(gauge, {40, 100}), test::PalGround);
    w.addBar(310, 300).write("newDefaultVal", 100); // above it
    w.design().refresh();
    EXPECT_EQ(seen(gauge, {40, 110}), test::PalGround);
    gauge.write("newMaxAngle", gauge.get().curMinAngle); // an empty scale has no needle
    EXPECT_EQ(seen(gauge, {65 + 8, 20}), Red);
    test::drag(gauge, {70, 110}, {{0, 40}});
    EXPECT_EQ(seen(gauge, {40, 20}), test::PalGround);
    w.run("mnuNTSC");
    EXPECT_EQ(seen(gauge, {40, 100}), test::NtscGround);
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
        EXPECT_EQ(seen(bar, c.filled), Red);
        EXPECT_NE(seen(bar, c.rest), Red);
        EXPECT_EQ(previewed(w, bar, c.filled), Red);
        EXPECT_EQ(previewed(w, bar, c.rest), test::PalGround);
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

TEST(Preview, ShowsOpacityAndStackingButNeitherFramesNorGrid)
{
    DesignWindow w(150);
    BarGraph &lower = w.addBar(300, 200);
    BarGraph &upper = w.addBar(300, 200);
    lower.write("newDefaultVal", 100);
    upper.write("newDefaultVal", 100);
    upper.write("newColour", 0xFF0000);
    EXPECT_EQ(previewed(w, lower, {30, 10}), Blue);
    lower.setFocus();
    EXPECT_EQ(previewed(w, lower, {30, 10}), Red);
    EXPECT_EQ(previewed(w, lower, {-3, 10}), test::PalGround);
    EXPECT_NE(w.canvas().grab().toImage().pixelColor(20, 30), test::PalGround); // a dot of the grid
    EXPECT_EQ(w.design().renderPreview().pixelColor(20, 30), test::PalGround);

    lower.write("newAlfa", 128);
    upper.write("newAlfa", 0);
    const QColor mixed = previewed(w, lower, {30, 10});
    EXPECT_NEAR(mixed.red(), 128, 1);
    EXPECT_NEAR(mixed.green(), 64, 1);
    DesignWindow fine(1); // a grid finer than the pixels
    EXPECT_NE(fine.canvas().grab().toImage().pixelColor(20, 31), test::PalGround);
}

} // namespace
