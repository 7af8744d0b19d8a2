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

} // namespace
