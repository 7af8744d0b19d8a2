#include "support/design_window.h"

#include <QAbstractItemView>

namespace {

using controls::Box;
using controls::OverlayControl;
using test::DesignWindow;

// Each way of adding a control with its corner at a canvas pixel.
void addFromMenuBar(DesignWindow &w, bool gauge, QPoint at)
{
    test::click(w, at);
    w.run(gauge ? "mnuAnalogDial" : "mnuBarGraph");
}

void addFromCanvasPopup(DesignWindow &w, bool gauge, QPoint at)
{
    test::click(w, at, {}, Qt::RightButton);
    test::choose(gauge ? "mnuDDAnalogDial" : "mnuDDBarGraph");
}

void addByLibraryDrop(DesignWindow &w, bool gauge, QPoint at)
{
    for (const char *name : {"trvControl", "lvControl"})
        EXPECT_TRUE(w.window.findChild<QAbstractItemView *>(name)->dragEnabled()) << name;
    test::drop(w.canvas(), at, surface::LibraryMime, gauge ? "aANALOGDIAL" : "fBARGRAPH");
}

TEST(Placing, EveryWayGivesANewControlItsStartValues)
{
    const QStringList newGauge{"2100", "2100", "0", "170", "270", "65", "4", "255",
                               "-120", "120",  "0", "160", "0",   "0",  "0", "0"};
    const QStringList newBar{"1950", "450", "0", "20", "255", "0", "100", "0", "0", "255", "0", "0", "0"};
    const QPoint beside(300, 210);
    const QPoint onTheGauge(110, 210);
    for (const auto &[add, place] : {std::pair(&addFromMenuBar, beside),
                                     {&addFromCanvasPopup, beside},
                                     {&addByLibraryDrop, onTheGauge}}) {
        DesignWindow w;
        add(w, true, {100, 200});
        add(w, false, place);
        ASSERT_EQ(w.design().controls().size(), 2);
        OverlayControl &gauge = *w.design().controls()[0];
        OverlayControl &bar = *w.design().controls()[1];
        EXPECT_EQ(gauge.box(), (Box{1500, 3000, 2100, 2100}));
        EXPECT_EQ(gauge.Serialise(), newGauge);
        EXPECT_EQ(bar.box(), (Box{15.0F * static_cast<float>(place.x()), 3150, 1950, 450}));
        EXPECT_EQ(bar.Serialise(), newBar);
        EXPECT_EQ(QPoint(test::whole(bar, "curLeft"), test::whole(bar, "curTop")),
                  15 * place + QPoint(75, 75));
        EXPECT_EQ(w.canvas().registry().stack(), w.design().controls());
    }
}

TEST(Placing, ControlsAtTheBottomRightStayOnTheCanvas)
{
    DesignWindow w;
    EXPECT_EQ(w.addGauge(719, 575).box(), (Box{8700, 6540, 2100, 2100}));
    EXPECT_EQ(w.addBar(719, 575).box(), (Box{8850, 8190, 1950, 450}));
    w.run("mnuNTSC");
    EXPECT_EQ(w.addBar(719, 479).box(), (Box{8850, 6750, 1950, 450}));
    EXPECT_EQ(test::whole(*w.design().controls()[2], "curTop"), 6825);
}

TEST(Placing, AGapInTheIndicesIsNotFilledAndRaisingKeepsTheOrder)
{
    DesignWindow w;
    OverlayControl &first = w.addBar(0, 0);
    OverlayControl &second = w.addBar(200, 0);
    w.addBar(400, 0);
    const std::weak_ptr<OverlayControl> remembered = second.weak_from_this();
    w.canvas().choose(second);
    test::press(w, Qt::Key_Delete);
    EXPECT_EQ(w.shown({210, 10}), test::PalGround);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(remembered.expired());
    w.addBar(0, 100);
    w.canvas().choose(first);
    EXPECT_EQ(w.canvas().registry().stack().last(), &first);
    QList<int> indices;
    for (const OverlayControl *control : w.design().controls())
        indices.append(control->Index());
    EXPECT_EQ(indices, (QList<int>{1, 3, 4}));
    EXPECT_EQ(w.addGauge(200, 200).Index(), 1);
}

enum Kind { Gauge, Bar, UprightBar };

// The corner stands at 4500, 1500; a new gauge is 140 pixels square, a new bar graph 130 by 30.
TEST(Resizing, AGripTakesTheBoxAsFarAsItsKindAllows)
{
    const struct
    {
        const char *name;
        Kind kind;
        int gridSpacing;
        QPoint from, way; // pixels within the control, pixels from there
        Box box;
        int size; // pointer length or bar width
    } cases[] = {
        {"square by the height", Gauge, 0, {137, 137}, {63, 23}, {4500, 1500, 2400, 2400}, 75},
        {"upper left", Gauge, 0, {2, 2}, {-20, -10}, {4380, 1380, 2220, 2220}, 69},
        {"smallest", Gauge, 0, {137, 137}, {-130, -130}, {4500, 1500, 180, 180}, 1},
        {"to the edge of the canvas", Gauge, 0, {137, 137}, {2000, 2000}, {4500, 1500, 6300, 6300}, 205},
        {"on the grid", Gauge, 150, {137, 137}, {22, 22}, {4500, 1500, 2250, 2250}, 70},
        {"no grip in the middle", Gauge, 0, {70, 2}, {10, 0}, {4650, 1500, 2100, 2100}, 65},
        {"thicker", Bar, 0, {65, 27}, {0, 23}, {4500, 1500, 1950, 750}, 40},
        {"thicker upwards", Bar, 0, {65, 2}, {0, -12}, {4500, 1350, 1950, 600}, 30},
        {"too long to the right", Bar, 0, {127, 15}, {273, 0}, {4500, 1500, 3975, 450}, 20},
        {"too long to the left", Bar, 0, {2, 15}, {-200, 0}, {2475, 1500, 3975, 450}, 20},
        {"too long downwards", UprightBar, 0, {65, 27}, {0, 370}, {4500, 1500, 1950, 3975}, 120},
        {"wider", UprightBar, 0, {127, 15}, {103, 0}, {4500, 1500, 3450, 450}, 220},
        {"a click on a grip", Gauge, 80, {137, 137}, {}, {4500, 1500, 2100, 2100}, 65},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        DesignWindow w(c.gridSpacing);
        auto &control =
            c.kind == Gauge ? static_cast<OverlayControl &>(w.addGauge(300, 100)) : w.addBar(300, 100);
        if (c.kind == UprightBar)
            control.write("newBarType", 1);
        if (c.way.isNull())
            test::click(w, QPoint(300, 100) + c.from);
        else
            test::drag(w, QPoint(300, 100) + c.from, {c.way / 2, c.way});
        EXPECT_EQ(control.box(), c.box);
        EXPECT_EQ(test::whole(control, c.kind == Gauge ? "curPointerLength" : "curBarWidth"), c.size);
        EXPECT_EQ(control.outerRect().size(), QSizeF(c.box.Width / 15, c.box.Height / 15).toSize());
    }
}

// 255 pixels and the frame; a gauge's needle turns through twice that.
TEST(Resizing, NothingGrowsPastWhatItsRecordHolds)
{
    constexpr float BarSide = 255 * 15 + 150;
    constexpr float GaugeSide = 2 * 255 * 15 + 150;
    for (const QPoint corner : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1)}) {
        SCOPED_TRACE(QString("corner %1, %2").arg(corner.x()).arg(corner.y()).toStdString());
        DesignWindow w;
        for (const auto &[control, side] :
             {std::pair<OverlayControl *, float>(&w.addGauge(580 - 580 * corner.x(), 436 - 436 * corner.y()),
                                                 GaugeSide),
              {&w.addBar(590 - 590 * corner.x(), 546 - 546 * corner.y()), BarSide}}) {
            w.canvas().choose(*control); // above the other one
            const QRect place = control->outerRect();
            const QPoint grip(corner.x() ? place.right() - 1 : place.left() + 2,
                              corner.y() ? place.bottom() - 1 : place.top() + 2);
            test::drag(w, grip, {(2 * corner - QPoint(1, 1)) * 560});
            const Box grown = control->box();
            EXPECT_EQ(QSizeF(grown.Width, grown.Height), QSizeF(side, side));
            EXPECT_EQ(corner.x() ? grown.Left : 10800 - grown.right(), 0); // the far corner stands
            EXPECT_EQ(corner.y() ? grown.Top : 8640 - grown.bottom(), 0);
        }
        for (const char *command : {"mnuPAL", "mnuNTSC"}) {
            w.run(command);
            for (OverlayControl *control : w.design().controls()) {
                const Box shown = control->box();
                control->AssignProperties();
                EXPECT_EQ(control->box(), shown) << command;
            }
        }
    }
}

} // namespace
