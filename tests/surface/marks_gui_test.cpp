#include "support/design_window.h"

#include <QAccessible>
#include <QSignalSpy>

namespace {

using controls::BarGraph;
using controls::OverlayControl;
using test::DesignWindow;
using test::placeOf;

constexpr QPoint Inside(60, 15);
const QColor White(Qt::white);
const QColor Red(Qt::red);   // selected
const QColor Blue(Qt::blue); // in the group

struct Marks : testing::Test
{
    DesignWindow w;
    BarGraph &one = w.addBar(100, 100);
    BarGraph &two = w.addBar(100, 200);
    BarGraph &three = w.addBar(300, 200);

    void focusLibrary() { w.window.findChild<QWidget *>("lvControl")->setFocus(); }
    void click(const OverlayControl &control, Qt::KeyboardModifiers modifiers = {},
               Qt::MouseButton button = Qt::LeftButton)
    {
        test::click(w, placeOf(control) + Inside, modifiers, button);
    }
    // The background of a control's frame, between two bands of the hatch.
    QColor frame(const OverlayControl &control) { return w.shown(placeOf(control) + QPoint(14, 2)); }
    QList<QColor> frames() { return {frame(one), frame(two), frame(three)}; }
    const OverlayControl *current() { return w.design().currentControl(); }
};

TEST_F(Marks, ClicksAndCtrlClicksColourTheFrames)
{
    using Frames = QList<QColor>;
    click(two);
    EXPECT_EQ(frames(), (Frames{White, Red, White}));
    click(two, Qt::ControlModifier);
    click(three, Qt::ControlModifier);
    EXPECT_EQ(frames().mid(1), (Frames{Blue, Blue}));
    // A second click with Ctrl takes a control out again; its frame is plain, not selected.
    click(three, Qt::ControlModifier);
    EXPECT_EQ(frames().mid(1), (Frames{Blue, White}));
    focusLibrary();
    w.canvas().setFocus(Qt::PopupFocusReason); // given back, nothing is chosen
    EXPECT_EQ(frames().mid(1), (Frames{Blue, White}));
    // A press on a member, also on its grip, keeps the group.
    click(three, Qt::ControlModifier);
    click(two);
    test::drag(w, placeOf(two) + QPoint(127, 15), {{20, 0}});
    EXPECT_EQ(frames().mid(1), (Frames{Blue, Blue}));
    EXPECT_EQ(placeOf(two), QPoint(100, 200));
    // A press on any other control or on the canvas clears it.
    click(one);
    EXPECT_EQ(frames(), (Frames{Red, White, White}));
    click(two, Qt::ControlModifier);
    test::click(w, {20, 20});
    EXPECT_EQ(frames(), (Frames{White, White, White}));
}

TEST_F(Marks, ARubberBandTakesControlsByTheirCorner)
{
    const std::tuple<QPoint, QPoint, QList<QColor>> cases[] = {
        {{420, 240}, {-380, -150}, {Blue, Blue, Blue}}, // the wrong way round
        {{90, 240}, {20, -40}, {White, Blue, White}},   // the edge belongs to it
        {{240, 90}, {200, 250}, {White, White, Blue}},  // not by a part of the others
        {{98, 80}, {6, 200}, {White, White, White}},    // no more than 100 twips wide
        {{98, 80}, {7, 200}, {Blue, Blue, White}},
    };
    for (const auto &[from, way, expected] : cases) {
        test::drag(w, from, {way / 2, way});
        EXPECT_EQ(frames(), expected) << "from " << from.x() << ", " << from.y();
    }
}

TEST_F(Marks, TheRightButtonOpensTheMenuOfTheControlOrTheGroup)
{
    QSignalSpy groupMenu(&w.design(), &surface::frmInterface::groupMenuRequested);
    click(two, {}, Qt::RightButton);
    test::choose("mnuDelete_C");
    EXPECT_EQ(w.design().controls(), (QList<OverlayControl *>{&one, &three}));
    EXPECT_EQ(groupMenu.size(), 0);
    click(three, Qt::ControlModifier, Qt::RightButton); // joins the group
    click(three, {}, Qt::RightButton);
    test::click(w, {20, 20}, {}, Qt::RightButton);
    EXPECT_EQ(groupMenu.size(), 3);
    QApplication::activePopupWidget()->close();
    click(one, Qt::ShiftModifier, Qt::RightButton); // no menu, a press like any other
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(frame(one), Red);
}

TEST_F(Marks, AChosenControlStandsOnTheTopAndTakesThePointer)
{
    BarGraph &upper = w.addBar(150, 110); // overlaps the first
    for (const auto &[chosen, place] : {std::pair(&one, QPoint(110, 110)), {&upper, QPoint(250, 130)}}) {
        test::click(w, place);
        test::click(w, {180, 120}); // in both
        EXPECT_EQ(current(), chosen);
        EXPECT_EQ(frame(*chosen), Red);
    }
}

TEST_F(Marks, TabAndTheToolbarStepThroughTheControlsInTheirOrder)
{
    click(two); // raised
    click(one);
    test::press(w, Qt::Key_Tab);
    EXPECT_EQ(current(), &two);
    w.pressToolButton("cmdPrevious");
    test::press(w, Qt::Key_Backtab, Qt::ShiftModifier); // round and round
    EXPECT_EQ(current(), &three);
    focusLibrary();
    w.pressToolButton("cmdNext");
    EXPECT_EQ(current(), &one);
    EXPECT_TRUE(w.canvas().hasFocus());
    test::click(w, {20, 20});
    test::press(w, Qt::Key_Tab);
    EXPECT_EQ(current(), &one);
}

TEST_F(Marks, AccessibilityToolsSeeEachControl)
{
    two.bindVariable(3);
    click(three);
    QAccessibleInterface *canvas = QAccessible::queryAccessibleInterface(&w.canvas());
    EXPECT_EQ(canvas->child(1)->text(QAccessible::Name), "Bar Graph, Engine speed []");
    EXPECT_EQ(canvas->child(1)->text(QAccessible::Description), "Pos (x, y) : 100, 200");
    EXPECT_EQ(canvas->focusChild(), canvas->child(2));
    EXPECT_EQ(canvas->child(2)->rect(), QRect(w.canvas().mapToGlobal(QPoint(300, 200)), QSize(130, 30)));
    QAccessibleInterface *gone = canvas->child(0);
    one.mnuDelete_Click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(gone->isValid());
    EXPECT_EQ(canvas->indexOfChild(canvas->child(1)), 1);
}

TEST_F(Marks, AHeldDeleteKeyDeletesOneControlAndChoosesNoOther)
{
    click(two);
    for (const bool repeated : {false, true, true})
        QTest::simulateEvent(&w.canvas(), true, Qt::Key_Delete, {}, {}, repeated);
    for (const char *command : {"cmdLeft", "cmdEnter", "mnuDelete_C", "mnuProperties_C"})
        w.run(command);
    EXPECT_EQ(w.design().controls(), (QList<OverlayControl *>{&one, &three}));
    EXPECT_EQ(current(), nullptr);
    EXPECT_EQ(placeOf(three), QPoint(300, 200));
    click(one, Qt::ControlModifier);
    QTest::simulateEvent(&w.canvas(), true, Qt::Key_Delete, {}, {}, true); // held since before it was chosen
    EXPECT_EQ(w.design().controls().size(), 2);
    w.world.prompts.expectQuestion("Do you want to clear design area ?", true);
    w.run("mnuNew");
    EXPECT_EQ(current(), nullptr);
    EXPECT_FALSE(w.design().canTake()); // the group is gone as well
    EXPECT_TRUE(w.canvas().hasFocus());
}

TEST_F(Marks, EnterOpensThePropertyDialog)
{
    QString title;
    test::whenOpened([&title](QWidget &dialog) {
        title = dialog.windowTitle();
        dialog.close();
    });
    click(one);
    test::press(w, Qt::Key_Return);
    EXPECT_EQ(title, "Bar Graph Properties");
}

} // namespace
