#include "support/design_window.h"
#include "surface/panel_area.h"

namespace {

using surface::PanelId;
using test::DesignWindow;

// Names of the menus and of the commands of the file menu and the toolbar that can be used.
QStringList usable(DesignWindow &w)
{
    QStringList names;
    for (QAction *menu : w.window.menuBar()->actions()) {
        if (menu->isEnabled())
            names.append(menu->menu()->objectName());
    }
    for (const QAction *action :
         w.window.findChild<QMenu *>("mnuFile")->actions() + w.window.findChild<QToolBar *>()->actions()) {
        if (action->isEnabled() && !action->isSeparator() && !names.contains(action->objectName()))
            names.append(action->objectName());
    }
    return names;
}

TEST(Preview, ShowsTheRecordersPictureAndTakesNothingButTheWayBack)
{
    DesignWindow w(80);
    controls::BarGraph &bar = w.addBar(100, 200);
    w.addTag(110, 205);
    w.canvas().choose(bar); // above the tag, but saved below it
    const QStringList before = usable(w);
    const QImage edited = w.canvas().grab().toImage();
    test::press(w, Qt::Key_F5);
    EXPECT_EQ(w.canvas().grab().toImage().convertedTo(QImage::Format_RGB32), w.design().renderPreview());
    EXPECT_EQ(usable(w), QStringList({"mnuFile", "mnuLoadFactoryLayout", "mnuEditMode", "mnuExit"}));
    for (const PanelId id : {PanelId::Library, PanelId::Functions})
        EXPECT_FALSE(w.design().panels().panel(id).isEnabled());

    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Right, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Menu})
        test::press(w, key);
    test::click(w, {300, 300}, {}, Qt::RightButton);
    test::click(w, {120, 210}, {}, Qt::RightButton);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    test::drag(w, {120, 210}, {{40, 40}});
    EXPECT_EQ(test::placeOf(bar), QPoint(100, 200));

    test::press(w, Qt::Key_Escape);
    EXPECT_EQ(usable(w), before);
    EXPECT_EQ(w.canvas().grab().toImage(), edited);
    test::press(w, Qt::Key_Right); // still current
    EXPECT_EQ(test::placeOf(bar), QPoint(101, 200));
}

TEST(Preview, EndsWithItsDesign)
{
    DesignWindow w;
    w.addBar(100, 200);
    w.run("mnuPlayMode");
    w.design().mnuNew_Click();
    EXPECT_FALSE(w.design().IsPlayMode());
    EXPECT_TRUE(w.action("mnuPlayMode").isEnabled());
    EXPECT_EQ(w.addBar(0, 0).mode(), controls::OverlayControl::Mode::Design);
}

} // namespace
