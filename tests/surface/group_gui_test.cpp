#include "bars.h"
#include "surface/placing.h"

namespace {

using controls::BarGraph;
using controls::ControlType;
using controls::OverlayControl;
using test::DesignWindow;
using test::placeOf;

struct Group : test::Bars
{
    BarGraph &three = w.addBar(300, 200);

    // Presses a control and leads it through `way`, without a release.
    void grab(const OverlayControl &control, const QList<QPoint> &way, Qt::KeyboardModifiers keys = {})
    {
        const QPoint from = placeOf(control) + Middle;
        QTest::mousePress(&w.canvas(), Qt::LeftButton, keys, from);
        for (const QPoint &step : way)
            QTest::mouseMove(&w.canvas(), from + step);
    }
    void letGo(QPoint at) { QTest::mouseRelease(&w.canvas(), Qt::LeftButton, {}, at); }
};

TEST_F(Group, MembersFollowTheDraggedOneAsFarAsTheCanvasGoes)
{
    test::click(w, {20, 20});
    ctrlClick(two);
    ctrlClick(three);
    const struct
    {
        QPoint way;
        QList<QPoint> places;
    } drags[] = {
        {{5, 5}, {{100, 100}, {150, 180}, {300, 200}}}, // jitter
        {{40, -20}, {{140, 80}, {190, 160}, {340, 180}}},
        {{300, 0}, {{440, 80}, {490, 160}, {590, 180}}}, // the third stays at the edge
        {{-340, 0}, {{100, 80}, {150, 160}, {250, 180}}},
        {{0, -150}, {{100, 0}, {150, 80}, {250, 100}}}, // so does the first, whom the others follow
    };
    for (const auto &[way, expected] : drags) {
        // The first press puts it into the group, too.
        grab(one, {way / 2, way}, one.IsSelectedToGroup() ? Qt::NoModifier : Qt::ControlModifier);
        w.canvas().grab(); // while the group is lifted
        letGo(placeOf(one) + Middle);
        EXPECT_EQ(places(), expected) << way.x() << ", " << way.y();
        for (const BarGraph *bar : {&one, &two, &three}) {
            EXPECT_EQ(QPoint(bar->get().curLeft, bar->get().curTop), 15 * (placeOf(*bar) + QPoint(5, 5)));
            EXPECT_NE(w.shown(placeOf(*bar) + QPoint(20, 2)), test::PalGround);
        }
    }
    EXPECT_EQ(w.shown({310, 210}), test::PalGround); // nothing is left where they were
}

TEST_F(Group, EscapeDropsTheGestureThenTheSelection)
{
    test::press(w, Qt::Key_A, Qt::ControlModifier);
    const QList<QPoint> before = places();
    grab(two, {{50, 50}, {400, 0}});
    EXPECT_EQ(placeOf(one), QPoint(500, 100));
    test::press(w, Qt::Key_Escape);
    EXPECT_EQ(places(), before);
    QTest::mouseMove(&w.canvas(), {350, 350}); // with the button still down
    letGo({400, 400});
    EXPECT_EQ(places(), before);
    EXPECT_TRUE(one.IsSelectedToGroup() && two.IsSelectedToGroup() && three.IsSelectedToGroup());
    test::press(w, Qt::Key_Escape);
    EXPECT_EQ(w.design().currentControl(), nullptr);
    EXPECT_FALSE(w.canvas().hasGroup());

    const controls::Box box = one.box();
    test::click(w, placeOf(one) + Middle);
    const QPoint grip = placeOf(one) + QPoint(127, 27);
    QTest::mousePress(&w.canvas(), Qt::LeftButton, {}, grip);
    QTest::mouseMove(&w.canvas(), grip + QPoint(30, 40));
    EXPECT_EQ(one.get().curBarWidth, 57);
    test::press(w, Qt::Key_Escape);
    letGo({400, 400});
    EXPECT_EQ(one.box(), box);
    EXPECT_EQ(one.get().curBarWidth, 20);
    EXPECT_EQ(w.design().currentControl(), &one);
}

// A load would pull it back.
TEST(Nudging, StopsAtTheFarEdges)
{
    for (const ControlType type : {ControlType::BarGraph, ControlType::TextTag, ControlType::DigitalDisplay,
                                   ControlType::TrackMap, ControlType::CustomDial}) {
        SCOPED_TRACE(int(type));
        DesignWindow w;
        w.design().addControl(type, {15 * 300, 15 * 200});
        OverlayControl &control = *w.design().controls().last();
        const QPoint last(720 - control.outerRect().width(), 576 - control.outerRect().height());
        surface::MoveTo(control, 15 * (last - QPoint(4, 14)), {});
        const std::pair<Qt::Key, QPoint> steps[] = {{Qt::Key_Right, {last.x(), last.y() - 14}},
                                                    {Qt::Key_Down, {last.x(), last.y() - 4}},
                                                    {Qt::Key_Down, last},
                                                    {Qt::Key_Right, last},
                                                    {Qt::Key_Up, {last.x(), last.y() - 10}},
                                                    {Qt::Key_Left, {last.x() - 10, last.y() - 10}}};
        for (const auto &[key, place] : steps) {
            test::press(w, key, Qt::ShiftModifier);
            EXPECT_EQ(placeOf(control), place);
            control.AssignProperties();
            EXPECT_EQ(placeOf(control), place);
        }
    }
}

} // namespace
