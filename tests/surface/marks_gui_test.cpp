#include "support/design_window.h"

#include <QSignalSpy>

namespace {

using controls::BarGraph;
using controls::OverlayControl;
using test::click;
using test::DesignWindow;

constexpr QPoint Inside(60, 15);
const QColor White(Qt::white);
const QColor Red(Qt::red);   // selected
const QColor Blue(Qt::blue); // in the group

// The background of a control's frame, between two bands of the hatch.
QColor frame(QWidget &control) { return control.grab().toImage().pixelColor(14, 2); }

struct Marks : testing::Test
{
    DesignWindow w;
    BarGraph &one = w.addBar(100, 100);
    BarGraph &two = w.addBar(100, 200);
    BarGraph &three = w.addBar(300, 200);

    void focusLibrary() { w.window.findChild<QWidget *>("lvControl")->setFocus(); }
    QList<QColor> frames() { return {frame(one), frame(two), frame(three)}; }
    QList<bool> grouped()
    {
        return {one.IsSelectedToGroup(), two.IsSelectedToGroup(), three.IsSelectedToGroup()};
    }
};

TEST_F(Marks, ClicksAndCtrlClicksColourTheFrames)
{
    click(two, Inside);
    EXPECT_EQ(frames(), (QList<QColor>{White, Red, White}));
    click(one, Inside);
    EXPECT_EQ(frames(), (QList<QColor>{Red, White, White}));
    click(two, Inside, Qt::ControlModifier);
    click(three, Inside, Qt::ControlModifier);
    EXPECT_EQ(frames().mid(1), (QList<QColor>{Blue, Blue}));
    EXPECT_EQ(grouped(), (QList<bool>{false, true, true}));
    // A second click with Ctrl takes a control out again; its frame is plain, not selected.
    click(three, Inside, Qt::ControlModifier);
    EXPECT_EQ(frames().mid(1), (QList<QColor>{Blue, White}));
    for (const auto reason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason}) {
        w.canvas().setFocus();
        three.setFocus(reason); // given back, not chosen
        EXPECT_EQ(frames().mid(1), (QList<QColor>{Blue, White}));
    }
    // A press on a member, also on its grip, keeps the group.
    click(three, Inside, Qt::ControlModifier);
    click(two, Inside);
    test::drag(two, {127, 15}, {{20, 0}});
    EXPECT_EQ(grouped(), (QList<bool>{false, true, true}));
    EXPECT_EQ(two.pos(), QPoint(100, 200));
    // A press on any other control or on the canvas clears it.
    click(one, Inside);
    EXPECT_EQ(frames(), (QList<QColor>{Red, White, White}));
    click(two, Inside, Qt::ControlModifier);
    click(w.canvas(), {20, 20});
    EXPECT_EQ(frames(), (QList<QColor>{White, White, White}));
    EXPECT_EQ(grouped(), (QList<bool>{false, false, false}));
}

TEST_F(Marks, ARubberBandTakesControlsByTheirCorner)
{
    const struct
    {
        QPoint from, way;
        QList<bool> marked;
    } cases[] = {
        {{90, 90}, {20, 120}, {true, true, false}},
        {{110, 210}, {-20, -120}, {true, true, false}}, // the other way round
        {{310, 90}, {-220, 120}, {true, true, true}},
        {{90, 240}, {20, -40}, {false, true, false}},  // the edge belongs to it
        {{101, 90}, {300, 250}, {false, false, true}}, // most of the others, but not their corners
        {{98, 80}, {6, 200}, {false, false, false}},   // no more than 100 twips wide
        {{98, 80}, {7, 200}, {true, true, false}},
    };
    for (const auto &c : cases) {
        test::drag(w.canvas(), c.from, {c.way / 2, c.way});
        EXPECT_EQ(grouped(), c.marked) << "from " << c.from.x() << ", " << c.from.y();
        EXPECT_EQ(frame(two), c.marked[1] ? Blue : White);
    }
    EXPECT_EQ(w.text("lblPosition"), "Pos (x, y) : 105, 280");
}

TEST_F(Marks, TheRightButtonOpensTheMenuOfTheControlOrTheGroup)
{
    QSignalSpy groupMenu(&w.design(), &surface::frmInterface::groupMenuRequested);
    QTest::mouseClick(&two, Qt::RightButton, {}, Inside);
    test::choose("mnuDelete_C");
    EXPECT_EQ(w.design().controls(), (QList<OverlayControl *>{&one, &three}));
    EXPECT_EQ(groupMenu.size(), 0);
    QTest::mouseClick(&three, Qt::RightButton, Qt::ControlModifier, Inside); // joins the group
    QTest::mouseClick(&three, Qt::RightButton, {}, Inside);
    QTest::mouseClick(&w.canvas(), Qt::RightButton, {}, {20, 20});
    EXPECT_EQ(groupMenu.size(), 3);
    QTest::mouseClick(&one, Qt::RightButton, Qt::ShiftModifier, Inside); // no menu, a press like any other
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(frame(one), Red);
}

TEST_F(Marks, TheFocusRaisesAControlAndShowsItSelected)
{
    BarGraph &upper = w.addBar(150, 110); // overlaps the first
    const QPoint overlap(160, 115);
    EXPECT_EQ(w.canvas().childAt(overlap), &upper);
    click(one, {20, 10});
    EXPECT_EQ(w.canvas().childAt(overlap), &one);
    upper.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(w.canvas().childAt(overlap), &upper);
    EXPECT_EQ(frame(upper), Red);
    EXPECT_EQ(frame(one), White);
}

TEST_F(Marks, TabAndTheToolbarStepThroughTheControlsInTheirOrder)
{
    two.raise();
    one.setFocus();
    QTest::keyClick(&one, Qt::Key_Tab);
    EXPECT_TRUE(two.hasFocus());
    w.pressToolButton("cmdNext");
    EXPECT_TRUE(three.hasFocus());
    QTest::keyClick(&three, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(two.hasFocus());
    w.pressToolButton("cmdPrevious");
    EXPECT_TRUE(one.hasFocus());
    QTest::keyClick(&one, Qt::Key_Backtab, Qt::ShiftModifier); // round and round
    EXPECT_TRUE(three.hasFocus());
    focusLibrary();
    w.pressToolButton("cmdNext");
    EXPECT_TRUE(one.hasFocus());
    click(w.canvas(), {20, 20});
    QTest::keyClick(&w.canvas(), Qt::Key_Tab);
    EXPECT_TRUE(one.hasFocus());
}

TEST_F(Marks, AHeldDeleteKeyDeletesOneControlAndChoosesNoOther)
{
    click(two, Inside);
    for (const bool repeated : {false, true, true})
        QTest::simulateEvent(QApplication::focusWidget(), true, Qt::Key_Delete, {}, {}, repeated);
    EXPECT_EQ(w.design().controls(), (QList<OverlayControl *>{&one, &three}));
    EXPECT_EQ(w.design().currentControl(), nullptr);
    EXPECT_EQ(frame(one), White);
    EXPECT_EQ(frame(three), White);
    const QPoint place = three.pos();
    for (const char *command : {"cmdLeft", "cmdEnter", "mnuDelete_C", "mnuProperties_C"})
        w.run(command);
    EXPECT_EQ(three.pos(), place);
    one.setFocus();
    QTest::simulateEvent(&one, true, Qt::Key_Delete, {}, {}, true); // held since before it had the focus
    EXPECT_EQ(w.design().controls().size(), 2);
    w.world.prompts.expectQuestion("Do you want to clear design area ?", true);
    w.run("mnuNew");
    EXPECT_EQ(w.design().currentControl(), nullptr);
    EXPECT_TRUE(w.canvas().hasFocus());
}

TEST_F(Marks, EnterAndSpaceOpenThePropertyDialog)
{
    OverlayControl &gauge = w.addGauge(300, 300);
    QString title;
    const auto closeDialog = [&title] {
        QWidget *dialog = QApplication::activeModalWidget();
        title = dialog->windowTitle();
        dialog->close();
    };
    QTimer::singleShot(0, &w.window, closeDialog);
    QTest::keyClick(&one, Qt::Key_Return);
    EXPECT_EQ(title, "Bar Graph Properties");
    w.window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&w.window));
    gauge.setFocus();
    focusLibrary();
    QTimer::singleShot(0, &w.window, closeDialog);
    w.pressToolButton("cmdEnter");
    EXPECT_EQ(title, "Analogue Dial Properties");
    EXPECT_EQ(w.design().controls().size(), 4);
    QTimer::singleShot(0, &w.window, closeDialog);
    QTest::keyClick(&one, Qt::Key_Space);
    EXPECT_EQ(title, "Bar Graph Properties");
}

} // namespace
