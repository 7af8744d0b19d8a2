#include "support/design_window.h"

#include <QAbstractItemView>

namespace {

using controls::Box;
using controls::OverlayControl;
using test::DesignWindow;

TEST(Placing, EveryWayPutsTheCornerOfANewControlWhereThePointerWas)
{
    DesignWindow w;
    test::click(w, {100, 200});
    w.run("mnuAnalogDial");
    test::click(w, {300, 210}, {}, Qt::RightButton);
    test::choose("mnuDDBarGraph");
    for (const char *name : {"trvControl", "lvControl"})
        EXPECT_TRUE(w.window.findChild<QAbstractItemView *>(name)->dragEnabled()) << name;
    test::drop(w.canvas(), {110, 210}, surface::LibraryMime, "fBARGRAPH"); // on the gauge
    const QList<OverlayControl *> &controls = w.design().controls();
    ASSERT_EQ(controls.size(), 3);
    EXPECT_EQ(test::placeOf(*controls[0]), QPoint(100, 200));
    EXPECT_EQ(test::placeOf(*controls[1]), QPoint(300, 210));
    EXPECT_EQ(test::placeOf(*controls[2]), QPoint(110, 210));
    EXPECT_EQ(test::whole(*controls[2], "curLeft"), 1725); // of its inner edge
    EXPECT_EQ(w.canvas().registry().stack(), controls);
}

TEST(Placing, TheBottomRightOfEachStandardPullsControlsInForGood)
{
    DesignWindow w;
    const QList<OverlayControl *> controls{&w.addGauge(719, 575), &w.addBar(719, 575)};
    EXPECT_EQ(controls[0]->box(), (Box{8700, 6540, 2100, 2100}));
    for (const auto &[command, height] : {std::pair("mnuNTSC", 480), std::pair("mnuPAL", 576)}) {
        w.run(command);
        EXPECT_EQ(w.canvas().height(), height);
        EXPECT_EQ(controls[0]->box(), (Box{8700, 5100, 2100, 2100}));
        EXPECT_EQ(controls[1]->box(), (Box{8850, 6750, 1950, 450}));
    }
}

TEST(Placing, AGapInTheIndicesIsNotFilledAndRaisingKeepsTheOrder)
{
    DesignWindow w;
    OverlayControl &first = w.addBar(0, 0);
    OverlayControl &second = w.addBar(200, 0);
    w.addBar(400, 0);
    w.canvas().choose(second);
    test::press(w, Qt::Key_Delete);
    w.addBar(0, 100);
    w.canvas().choose(first);
    QList<int> indices;
    for (const OverlayControl *control : w.design().controls())
        indices.append(control->Index());
    EXPECT_EQ(indices, (QList<int>{1, 3, 4}));
    EXPECT_EQ(w.addGauge(200, 200).Index(), 1);
}

enum Kind { Gauge, Bar, UprightBar };

// A new gauge is 140 pixels square, a new bar graph 130 by 30. A record holds 255 pixels of a bar, and of a
// needle, which turns through twice that.
TEST(Resizing, AGripTakesTheBoxAsFarAsItsKindAllows)
{
    const struct
    {
        Kind kind;
        int gridSpacing;
        QPoint corner, from, way; // on the canvas, within the control, from there
        Box box;
        int size; // pointer length or bar width
    } cases[] = {
        {Gauge, 0, {300, 100}, {137, 137}, {63, 23}, {4500, 1500, 2400, 2400}, 75}, // by the height
        {Gauge, 0, {300, 100}, {2, 2}, {-20, -10}, {4380, 1380, 2220, 2220}, 69},
        {Gauge, 0, {300, 100}, {137, 137}, {-130, -130}, {4500, 1500, 180, 180}, 1},
        {Gauge, 0, {300, 100}, {137, 137}, {2000, 2000}, {4500, 1500, 6300, 6300}, 205},
        {Gauge, 0, {0, 0}, {137, 137}, {560, 560}, {0, 0, 7800, 7800}, 255},
        {Gauge, 0, {580, 436}, {2, 2}, {-560, -560}, {3000, 840, 7800, 7800}, 255},
        {Gauge, 150, {300, 100}, {137, 137}, {22, 22}, {4500, 1500, 2250, 2250}, 70},
        {Gauge, 80, {300, 100}, {137, 137}, {}, {4500, 1500, 2100, 2100}, 65},  // pressed and released
        {Gauge, 0, {300, 100}, {70, 2}, {10, 0}, {4650, 1500, 2100, 2100}, 65}, // no grip there
        {Bar, 0, {300, 100}, {65, 2}, {0, -12}, {4500, 1350, 1950, 600}, 30},
        {Bar, 0, {300, 100}, {2, 15}, {-200, 0}, {2475, 1500, 3975, 450}, 20},
        {Bar, 0, {590, 0}, {2, 27}, {-560, 560}, {6825, 0, 3975, 3975}, 255},
        {UprightBar, 0, {300, 100}, {65, 27}, {0, 370}, {4500, 1500, 1950, 3975}, 120},
        {UprightBar, 0, {300, 100}, {127, 15}, {103, 0}, {4500, 1500, 3450, 450}, 220},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(&c - cases);
        DesignWindow w(c.gridSpacing);
        const auto [x, y] = std::pair(c.corner.x(), c.corner.y());
        auto &control = c.kind == Gauge ? static_cast<OverlayControl &>(w.addGauge(x, y)) : w.addBar(x, y);
        if (c.kind == UprightBar)
            control.write("newBarType", 1);
        test::drag(w, c.corner + c.from, {c.way / 2, c.way});
        EXPECT_EQ(control.box(), c.box);
        EXPECT_EQ(test::whole(control, c.kind == Gauge ? "curPointerLength" : "curBarWidth"), c.size);
        control.AssignProperties();
        EXPECT_EQ(control.box(), c.box);
    }
}

} // namespace
