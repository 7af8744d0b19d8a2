#include "bars.h"
#include "controls/bitmap/bitmap.h"
#include "surface/placing.h"

namespace {

using controls::BarGraph;
using controls::Bitmap;
using controls::ControlType;
using controls::OverlayControl;
using test::DesignWindow;
using test::placeOf;

struct Pasting : test::Bars
{
    void ctrl(Qt::Key key) { test::press(w, key, Qt::ControlModifier); }
    // The menu that the right button opens there, and the entries that it offers.
    QStringList rightClick(QPoint at)
    {
        test::click(w, at, {}, Qt::RightButton);
        QWidget *menu = QApplication::activePopupWidget();
        QStringList offered{menu->objectName()};
        for (const QAction *entry : menu->actions()) {
            if (entry->isEnabled() && !entry->isSeparator() && !entry->menu())
                offered.append(entry->objectName());
        }
        menu->close();
        return offered;
    }
    void markBoth()
    {
        test::click(w, {20, 20});
        ctrlClick(one);
        ctrlClick(two);
    }
};

TEST_F(Pasting, TheKeysCopyAndCutOneControl)
{
    test::click(w, {20, 20});
    ctrl(Qt::Key_C);
    ctrl(Qt::Key_V);
    EXPECT_EQ(places().size(), 2); // nothing was chosen
    one.bindVariable(3);
    test::click(w, placeOf(one) + Middle);
    ctrl(Qt::Key_C);
    test::click(w, {300, 300});
    ctrl(Qt::Key_V);
    test::click(w, {715, 570});
    ctrl(Qt::Key_V);
    EXPECT_EQ(places(), (QList<QPoint>{{100, 100}, {150, 180}, {300, 300}, {590, 546}}));
    const auto &copy = static_cast<const BarGraph &>(*w.design().controls()[2]);
    EXPECT_EQ(copy.Serialise(), one.Serialise());
    EXPECT_EQ(QPoint(copy.get().curLeft, copy.get().curTop), QPoint(4575, 4575));
    EXPECT_EQ(w.design().currentControl(), w.design().controls()[3]);

    test::click(w, placeOf(one) + Middle);
    ctrl(Qt::Key_X);
    EXPECT_EQ(places().size(), 4); // until it is pasted
    for (const QPoint at : {QPoint(20, 400), QPoint(20, 450)}) {
        test::click(w, at);
        ctrl(Qt::Key_V);
    }
    EXPECT_EQ(places(), (QList<QPoint>{{150, 180}, {300, 300}, {590, 546}, {20, 400}, {20, 450}}));
}

TEST(Copies, StandLikeTheirSourceInEveryFamily)
{
    for (const controls::Family &family : controls::families()) {
        SCOPED_TRACE(family.name);
        DesignWindow w(80);
        test::click(w, {207, 101}); // where the next ones go
        w.design().addControlAtLastPosition(family.type);
        OverlayControl &source = *w.design().controls().last();
        test::drag(w, placeOf(source) + QPoint(20, 12), {{-47, 31}});
        test::drag(w, source.outerRect().bottomRight() - QPoint(1, 1), {{13, 17}}); // by its grip, if any
        source.mnuCopy_Click();
        w.design().mnuPaste_Click();
        OverlayControl &copy = *w.design().controls().last();
        surface::MoveTo(copy, surface::cornerOf(source), {});
        EXPECT_EQ(copy.box(), source.box());
        EXPECT_EQ(copy.Serialise(), source.Serialise());
    }
}

TEST_F(Pasting, AGroupKeepsItsShapeAndWaitsForOnePaste)
{
    const QStringList group{"mnuGroupControl", "mnuGroupCut", "mnuGroupCopy",  "mnuAlignLeft",
                            "mnuAlignRight",   "mnuAlignTop", "mnuAlignBottom"};
    const QStringList paste{"mnuGroupControl", "mnuGroupPaste"};
    EXPECT_EQ(rightClick({300, 300}).mid(0, 2), (QStringList{"mnuDropDown", "mnuCut"}));
    test::click(w, {20, 20});
    EXPECT_EQ(rightClick({300, 300}), (QStringList{"mnuDropDown"}));
    for (const auto &[command, at] :
         {std::pair("mnuGroupCopy", QPoint(300, 300)), {"mnuGroupCut", QPoint(20, 400)}}) {
        markBoth();
        EXPECT_EQ(rightClick({20, 20}), group);
        w.run(command);
        EXPECT_EQ(rightClick(placeOf(one) + Middle), group);
        test::click(w, {650, 20});
        EXPECT_EQ(rightClick(at), paste);
        w.run("mnuGroupPaste");
        EXPECT_EQ(rightClick({650, 20}), (QStringList{"mnuDropDown"}));
    }
    EXPECT_EQ(places(), (QList<QPoint>{{300, 300}, {350, 380}, {20, 400}, {70, 480}}));
}

TEST_F(Pasting, EdgesOfAGroupAreAligned)
{
    markBoth();
    rightClick({20, 20});
    w.run("mnuAlignRight");
    EXPECT_EQ(places(), (QList<QPoint>{{150, 100}, {150, 180}}));
    EXPECT_EQ(one.get().curLeft, 2325);
}

// What the recorder draws of them, wherever their boxes end.
TEST_F(Pasting, PicturesOfAMixedGroupAreAligned)
{
    w.design().addControl(ControlType::VideoSource, {15 * 160, 15 * 320});
    w.design().controls().last()->write("newLeftBorderWidth", 8); // cropped off
    w.design().addControl(ControlType::TrackMap, {15 * 300, 15 * 400});
    test::press(w, Qt::Key_A, Qt::ControlModifier);
    w.run("mnuAlignLeft");
    EXPECT_EQ(places(), (QList<QPoint>{{100, 100}, {100, 180}, {97, 320}, {105, 400}}));
}

TEST_F(Pasting, ABitmapIsPastedWithItsPictureWhileItsSourceLives)
{
    w.design().addControl(ControlType::Bitmap, {4500, 4500});
    auto &bitmap = static_cast<Bitmap &>(*w.design().controls().last());
    controls::BitmapValues values = bitmap.get();
    QImage picture(64, 32, QImage::Format_RGB32);
    picture.fill(Qt::red);
    values.picture = graphics::PlanePicture::chosen(picture, picture);
    values.curFileName = "gone.bmp";
    values.curZorder = 0;
    bitmap.set(values);
    bitmap.AssignProperties();
    bitmap.mnuCopy_Click();
    w.design().mnuPaste_Click();
    const auto &copy = static_cast<const Bitmap &>(*w.design().controls().last());
    EXPECT_EQ(copy.get().picture, values.picture);
    EXPECT_EQ(copy.box().Width, bitmap.box().Width);
    EXPECT_EQ(QPoint(copy.get().curLeftCoord, copy.get().curTopCoord), placeOf(copy) + QPoint(5, 5));
    bitmap.mnuDelete_Click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    w.design().mnuPaste_Click();
    EXPECT_EQ(w.design().controls().size(), 4);
    EXPECT_TRUE(static_cast<const Bitmap &>(*w.design().controls().last()).get().picture.isEmpty());
}

} // namespace
