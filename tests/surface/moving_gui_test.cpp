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
    const std::tuple<int, QList<QPoint>, QPoint, const char *> cases[] = {
        {0, {{5, -5}}, {1500, 3000}, ""}, // jitter
        {0, {{6, 0}}, {1590, 3000}, "Pos (x, y) : 106, 200"},
        {0, {{0, 6}, {2, 1}}, {1530, 3015}, "Pos (x, y) : 102, 201"}, // once out every step counts
        {150, {{9, 0}, {10, 0}}, {1650, 3000}, "Pos (x, y) : 110, 200"},
        {150, {{-6, 0}}, {1350, 3000}, "Pos (x, y) : 90, 200"}, // snaps down, backwards too
        {80, {{2000, 2000}}, {8850, 8190}, "Pos (x, y) : 590, 546"},
        {80, {{-2000, -2000}}, {0, 0}, "Pos (x, y) : 0, 0"},
    };
    for (const auto &[spacing, way, corner, shown] : cases) {
        DesignWindow w(spacing);
        BarGraph &bar = w.addBar(100, 200);
        test::drag(w, placeOf(bar) + Middle, way);
        EXPECT_EQ(QPointF(bar.box().Left, bar.box().Top), corner) << shown;
        EXPECT_EQ(w.text("lblPosition"), shown);
    }
}

// A menu or a box that opened in between may have taken the release.
TEST(Moving, ADragLastsUntilTheButtonIsReleasedOrFoundReleased)
{
    DesignWindow w;
    BarGraph &bar = w.addBar(100, 200);
    surface::Canvas &canvas = w.canvas();
    test::drag(w, placeOf(bar) + Middle, {{30, 40}});
    test::drag(w, placeOf(bar) + Middle, {{4, 4}}); // the next press begins with jitter again
    EXPECT_EQ(placeOf(bar), QPoint(130, 240));

    const QPoint at = placeOf(bar) + Middle;
    QTest::mousePress(&canvas, Qt::LeftButton, {}, at);
    QMouseEvent move(QEvent::MouseMove, at + QPoint(20, 0), canvas.mapToGlobal(at + QPoint(20, 0)),
                     Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(&canvas, &move);
    EXPECT_EQ(placeOf(bar), QPoint(130, 240));
    QTest::mouseRelease(&canvas, Qt::LeftButton, {}, at);

    QTest::mousePress(&canvas, Qt::LeftButton, {}, at);
    QTest::mouseMove(&canvas, {300, 300});
    test::press(w, Qt::Key_Delete); // in the middle of a drag
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
    test::press(w, Qt::Key_Left);
    test::press(w, Qt::Key_Up);
    EXPECT_EQ(placeOf(control), place - QPoint(1, 1));
    EXPECT_EQ(w.text("lblPosition"), surface::positionText({control.box().Left, control.box().Top}, {}));
    w.pressToolButton("cmdDown");
    w.pressToolButton("cmdRight");
    EXPECT_EQ(placeOf(control), place);
}

// On the grid of 80 twips places are no whole pixels.
TEST(Moving, ThePositionPropertiesNameTheSamePlaceOnEveryPath)
{
    DesignWindow w(80);
    for (OverlayControl *control : QList<OverlayControl *>{&w.addGauge(250, 430), &w.addBar(101, 540)}) {
        const std::pair<QPoint, QList<QPoint>> gestures[] = {
            {{20, 15}, {{31, -17}, {44, -23}}},
            {{-2, -2}, {{25, 20}, {37, 24}}}, // the grip at the far corner
            {{2, 2}, {{-25, -20}, {-31, -7}}},
            {{20, 15}, {{0, 900}}},
        };
        expectSteadyPlace(w, *control);
        for (const auto &[from, way] : gestures) {
            SCOPED_TRACE(way.last().y());
            test::drag(w, (from.x() < 0 ? control->outerRect().bottomRight() : placeOf(*control)) + from,
                       way);
            expectSteadyPlace(w, *control);
        }
    }
}

} // namespace
