#include "support/design_window.h"
#include "surface/library_panel.h"
#include "surface/panel_area.h"

namespace {

using surface::PanelId;

struct Panels : testing::Test
{
    test::DesignWindow w;
    surface::PanelArea &panels = w.design().panels();
    surface::LibraryPanel &library = *w.window.findChild<surface::LibraryPanel *>();

    void expectSteps(Qt::KeyboardModifiers modifiers, const QList<PanelId> &way)
    {
        for (const PanelId id : way) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, modifiers);
            EXPECT_TRUE(panels.panel(id).isAncestorOf(QApplication::focusWidget())) << int(id);
        }
    }
    // Places of the open panels and of the library's bar.
    QList<QRect> arrangement()
    {
        QList<QRect> places;
        for (const auto id : {PanelId::Functions, PanelId::Library, PanelId::Design})
            places.append(panels.panel(id).isVisible() ? panels.panel(id).geometry() : QRect());
        return places << library.handle(1)->geometry();
    }
};

TEST_F(Panels, F6StepsThroughThoseThatAreOpenAndBackToTheControl)
{
    const controls::OverlayControl &bar = w.addBar(100, 200);
    expectSteps({}, {PanelId::Functions, PanelId::Library, PanelId::Design});
    EXPECT_TRUE(w.canvas().hasFocus());
    EXPECT_EQ(w.design().currentControl(), &bar);
    panels.setPanelVisible(PanelId::Functions, false);
    expectSteps(Qt::ShiftModifier, {PanelId::Library, PanelId::Design, PanelId::Library});
    expectSteps({}, {PanelId::Design});
}

TEST_F(Panels, ResetBringsBackTheFirstArrangementWhichFollowsTheWindow)
{
    const QList<QRect> first = arrangement();
    test::drag(*library.handle(1), {2, 50}, {{60, 0}});
    test::drag(panels.panel(PanelId::Functions), {60, 10}, {{-150, 40}});
    w.run("mnuPanelLibrary");
    w.run("mnuResetPanels");
    EXPECT_EQ(arrangement(), first);
    EXPECT_TRUE(w.action("mnuPanelLibrary").isChecked());
    for (const bool smaller : {true, false}) {
        w.window.resize(w.window.size() + (smaller ? QSize(-200, -100) : QSize(200, 100)));
        EXPECT_TRUE(QTest::qWaitFor([&] { return (arrangement().first(3) != first.first(3)) == smaller; }));
    }
}

} // namespace
