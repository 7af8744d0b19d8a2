#include "support/design_window.h"

namespace {

using controls::BarGraph;
using controls::Gauge;
using controls::OverlayControl;
using test::DesignWindow;
using test::placeOf;

constexpr QPoint Middle(65, 15); // of a new bar graph

// The bar's corner stands at 1500, 3000.
TEST(Moving, ADragFollowsThePointerByTheRulesOfTheCanvas)
{
    const struct
    {
        const char *name;
        int gridSpacing;
        QList<QPoint> way;
        QPoint corner; // twips
        const char *shown;
    } cases[] = {
        {"four pixels are jitter", 0, {{4, 4}}, {1500, 3000}, ""},
        {"so are five", 0, {{5, -5}}, {1500, 3000}, ""},
        {"six move", 0, {{6, 0}}, {1590, 3000}, "Pos (x, y) : 106, 200"},
        {"once out every step counts", 0, {{0, 6}, {2, 1}}, {1530, 3015}, "Pos (x, y) : 102, 201"},
        {"short of the next line", 150, {{9, 0}}, {1500, 3000}, "Pos (x, y) : 100, 200"},
        {"on the next line", 150, {{9, 0}, {10, 0}}, {1650, 3000}, "Pos (x, y) : 110, 200"},
        {"backwards is down too", 150, {{-6, 0}}, {1350, 3000}, "Pos (x, y) : 90, 200"},
        {"right and bottom edge", 80, {{2000, 2000}}, {8850, 8190}, "Pos (x, y) : 590, 546"},
        {"left and top edge", 80, {{-2000, -2000}}, {0, 0}, "Pos (x, y) : 0, 0"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        DesignWindow w(c.gridSpacing);
        BarGraph &bar = w.addBar(100, 200);
        test::drag(w, placeOf(bar) + Middle, c.way);
        EXPECT_EQ(QPointF(bar.box().Left, bar.box().Top), c.corner);
        EXPECT_EQ(QPoint(bar.get().curLeft, bar.get().curTop), c.corner + QPoint(75, 75));
        EXPECT_EQ(w.text("lblPosition"), c.shown);
    }
}

// A menu or a box that opened in between may have taken the release.
TEST(Moving, ADragLastsUntilTheButtonIsReleasedOrFoundReleased)
{
    DesignWindow w;
    BarGraph &bar = w.addBar(100, 200);
    surface::Canvas &canvas = w.canvas();
    QTest::mousePress(&canvas, Qt::LeftButton, {}, placeOf(bar) + Middle);
    QTest::mouseMove(&canvas, placeOf(bar) + Middle + QPoint(30, 40));
    EXPECT_EQ(placeOf(bar), QPoint(130, 240));
    QTest::mouseRelease(&canvas, Qt::LeftButton, {}, placeOf(bar) + Middle);
    test::drag(w, placeOf(bar) + Middle, {{4, 4}}); // the next press begins with jitter again
    EXPECT_EQ(placeOf(bar), QPoint(130, 240));

    QTest::mousePress(&canvas, Qt::LeftButton, {}, placeOf(bar) + Middle);
    const QPoint at = placeOf(bar) + Middle + QPoint(20, 0);
    QMouseEvent move(QEvent::MouseMove, at, canvas.mapToGlobal(at), Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(&canvas, &move);
    EXPECT_EQ(placeOf(bar), QPoint(130, 240));
    QTest::mouseRelease(&canvas, Qt::LeftButton, {}, placeOf(bar) + Middle);

    // Deleted in the middle of a drag, by its key.
    QTest::mousePress(&canvas, Qt::LeftButton, {}, placeOf(bar) + Middle);
    QTest::mouseMove(&canvas, {300, 300});
    test::press(w, Qt::Key_Delete);
    QTest::mouseMove(&canvas, {350, 300});
    QTest::mouseRelease(&canvas, Qt::LeftButton, {}, {350, 300});
    EXPECT_TRUE(w.design().controls().isEmpty());
    EXPECT_EQ(w.shown({320, 310}), test::PalGround);
}

// Neither a nudge nor an Apply may make the control jump.
void expectSteadyPlace(DesignWindow &w, OverlayControl &control)
{
    const QPoint place = placeOf(control);
    w.canvas().choose(control);
    if (auto *gauge = dynamic_cast<Gauge *>(&control)) {
        const int inset = 5 + gauge->get().curPointerLength;
        EXPECT_EQ(QPoint(gauge->get().curCenterX, gauge->get().curCenterY), place + QPoint(inset, inset));
    }
    control.AssignProperties();
    EXPECT_EQ(placeOf(control), place);
    test::press(w, Qt::Key_Right);
    test::press(w, Qt::Key_Down);
    EXPECT_EQ(placeOf(control), place + QPoint(1, 1));
    const QPointF corner(control.box().Left, control.box().Top);
    EXPECT_EQ(w.text("lblPosition"), surface::positionText(corner, {}));
    w.pressToolButton("cmdUp");
    w.pressToolButton("cmdLeft");
    EXPECT_EQ(placeOf(control), place);
}

// On the grid of 80 twips places are no whole pixels.
TEST(Moving, ThePositionPropertiesNameTheSamePlaceOnEveryPath)
{
    DesignWindow w(80);
    for (OverlayControl *control : QList<OverlayControl *>{&w.addGauge(250, 430), &w.addBar(101, 540)}) {
        const struct
        {
            const char *name;
            QPoint from; // negative: from the far corner
            QList<QPoint> way;
        } gestures[] = {
            {"none yet", {}, {}},
            {"a drag", {20, 15}, {{31, -17}, {44, -23}}},
            {"a grip", {-2, -2}, {{25, 20}, {37, 24}}},
            {"the top left grip", {2, 2}, {{-25, -20}, {-31, -7}}},
            {"a drag to the edge", {20, 15}, {{0, 900}}},
        };
        for (const auto &[name, from, way] : gestures) {
            SCOPED_TRACE(name);
            if (!from.isNull())
                test::drag(w, (from.x() < 0 ? control->outerRect().bottomRight() : placeOf(*control)) + from,
                           way);
            expectSteadyPlace(w, *control);
        }
        for (const char *command : {"mnuNTSC", "mnuPAL"}) {
            SCOPED_TRACE(command);
            w.run(command);
            expectSteadyPlace(w, *control);
        }
    }
}

TEST(Moving, ANarrowerStandardPullsControlsInForGood)
{
    DesignWindow w;
    const QList<OverlayControl *> controls{&w.addGauge(0, 430), &w.addBar(300, 540), &w.addBar(300, 450)};
    for (const auto &[command, height] : {std::pair("mnuNTSC", 480), std::pair("mnuPAL", 576)}) {
        w.run(command);
        EXPECT_EQ(w.canvas().height(), height);
        EXPECT_EQ(placeOf(*controls[0]), QPoint(0, 340));
        EXPECT_EQ(placeOf(*controls[1]), QPoint(300, 450));
        EXPECT_EQ(placeOf(*controls[2]), QPoint(300, 450)); // ended exactly at the edge
    }
}

} // namespace
