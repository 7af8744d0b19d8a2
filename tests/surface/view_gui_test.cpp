#include "support/design_window.h"
#include "surface/canvas_view.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <QWheelEvent>

namespace {

using test::DesignWindow;
using test::placeOf;

TEST(View, ZoomStepsStayWithinTheirBoundsAndAFitLeavesNothingOut)
{
    EXPECT_EQ(surface::nextZoom(100, true), 110);
    EXPECT_EQ(surface::nextZoom(87, true), 90); // from between two steps
    EXPECT_EQ(surface::nextZoom(87, false), 75);
    EXPECT_EQ(surface::nextZoom(400, true), 400);
    EXPECT_EQ(surface::nextZoom(25, false), 25);
    EXPECT_EQ(surface::fittingZoom({720, 576}, {1000, 576}), 100);
    EXPECT_EQ(surface::fittingZoom({720, 480}, {719, 2000}), 99);
    EXPECT_EQ(surface::fittingZoom({720, 576}, {10, 10}), 25);
}

TEST(View, TheMouseActsOnTheSameControlsAtEveryZoom)
{
    for (const int percent : {50, 110, 200}) {
        SCOPED_TRACE(percent);
        DesignWindow w;
        controls::BarGraph &bar = w.addBar(100, 200);
        w.design().view().setZoom(percent);
        const surface::Zoom &zoom = w.canvas().zoom();
        const auto shown = [&](int x, int y) { return zoom.shown(QPointF(x + 0.5, y + 0.5)).toPoint(); };
        test::drag(w, shown(165, 215), {shown(195, 255) - shown(165, 215)});
        EXPECT_EQ(placeOf(bar), QPoint(130, 240));
        const QPoint grip = zoom.shown(bar.outerRect()).bottomRight() - QPoint(3, 3); // of five pixels
        test::drag(w, grip, {shown(300, 290) - grip});
        EXPECT_EQ(bar.outerRect(), QRect(130, 240, 170, 50));
        test::drop(w.canvas(), shown(10, 20), surface::LibraryMime, "fBARGRAPH");
        EXPECT_EQ(placeOf(*w.design().controls().last()), QPoint(10, 20));
        const QAccessibleInterface &child = *QAccessible::queryAccessibleInterface(&w.canvas())->child(0);
        const QRect place(w.canvas().mapToGlobal(zoom.shown(bar.outerRect()).topLeft()),
                          zoom.shown(bar.outerRect()).size());
        EXPECT_EQ(child.rect(), place);
    }
}

TEST(View, TheWheelZoomsAroundThePointer)
{
    DesignWindow w;
    surface::CanvasView &view = w.design().view();
    QWidget &viewport = *view.viewport();
    w.run("mnuZoom200");
    const QPoint at(70, 90);
    const auto below = [&] { return w.canvas().zoom().toCanvas(w.canvas().mapFrom(&viewport, QPointF(at))); };
    const QPointF before = below();
    for (const int turn : {60, 60, -240}) { // a fine wheel turns by half steps
        QWheelEvent wheel(at, viewport.mapToGlobal(at), {}, {0, turn}, Qt::NoButton, Qt::ControlModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&viewport, &wheel);
        EXPECT_LT((below() - before).manhattanLength(), 1.5);
    }
    EXPECT_EQ(w.text("lblZoom"), "175 %");
    QTest::keyClick(&w.canvas(), Qt::Key_9, Qt::ControlModifier);
    EXPECT_EQ(view.zoom(), surface::fittingZoom({720, 576}, view.maximumViewportSize()));
    w.run("mnuNTSC");
    EXPECT_EQ(view.zoom(), surface::fittingZoom({720, 480}, view.maximumViewportSize()));
    QTest::keyClick(&w.canvas(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(w.canvas().size(), QSize(720, 480));
    EXPECT_FALSE(w.action("mnuZoomFit").isChecked());
}

TEST(View, AGestureThatLeavesTheViewScrollsIt)
{
    DesignWindow w;
    const surface::CanvasView &view = w.design().view();
    w.run("mnuZoom200");
    const QPoint corner = w.canvas().mapFrom(view.viewport(), QPoint(0, 0));
    const QPointF seen = w.canvas().zoom().toCanvas(QPointF(corner));
    controls::BarGraph &bar = w.addBar(static_cast<int>(seen.x()) + 20, static_cast<int>(seen.y()) + 20);
    const float before = bar.box().Left;
    const QPoint press = w.canvas().zoom().shown(bar.outerRect()).center();
    test::drag(w, press, {{20, 0}, {view.viewport()->width(), 0}});
    EXPECT_GT(w.canvas().mapFrom(view.viewport(), QPoint(0, 0)).x(), corner.x());
    EXPECT_GT(bar.box().Left, before);
}

TEST(View, AFitThatWasChosenBeforeTheFirstSizeIsMadeUpFor)
{
    auto &canvas = *new surface::Canvas;
    surface::CanvasView view(canvas);
    view.setFitting(true);
    view.reveal({0, 0, 9, 9});
    EXPECT_EQ(view.zoom(), 100);
    canvas.display({}, {}, true);
    view.resize(500, 400);
    view.show();
    EXPECT_EQ(view.zoom(), surface::fittingZoom({720, 576}, view.maximumViewportSize()));
}

TEST(View, WholeFactorsShowEachPixelOfThePictureAsItIs)
{
    DesignWindow w;
    w.addTag(100, 200);
    w.canvas().chooseNone();
    w.run("mnuPlayMode");
    w.design().view().setZoom(200);
    const QImage preview = w.design().renderPreview();
    EXPECT_EQ(w.canvas().grab().toImage().convertedTo(QImage::Format_RGB32),
              preview.scaled(preview.size() * 2, Qt::IgnoreAspectRatio, Qt::FastTransformation));
}

TEST(View, SafeAreasLieOverTheDesignAndStayForTheNextStart)
{
    DesignWindow w;
    const QPoint edges[] = {{36, 100}, {72, 100}}; // of 90 and 80 per cent
    w.run("mnuSafeAreas");
    for (const QPoint edge : edges)
        EXPECT_NE(w.shown(edge), test::PalGround);
    w.design().load();
    EXPECT_NE(w.shown(edges[0]), test::PalGround);
    w.run("mnuPlayMode");
    EXPECT_EQ(w.shown(edges[0]), test::PalGround);
    w.run("mnuEditMode");
    w.run("mnuSafeAreas");
    EXPECT_EQ(w.shown(edges[1]), test::PalGround);
}

TEST(View, ABackgroundOfAnotherSizeStandsAtTheTopLeft)
{
    constexpr QSize Canvas(720, 576);
    const std::pair<QSize, QColor> cases[] = {{Canvas, Qt::red}, {{900, 700}, Qt::red}, {{9, 7}, Qt::black}};
    for (const auto &[size, last] : cases) {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::red);
        const QImage ground = surface::groundOf(Canvas, picture);
        EXPECT_EQ(ground.size(), Canvas);
        EXPECT_EQ(ground.pixelColor(0, 0), QColor(Qt::red));
        EXPECT_EQ(ground.pixelColor(719, 575), last);
    }
}

TEST(View, AControlSaysWhatItIsWhereItIsAndWhatItShows)
{
    DesignWindow w;
    controls::BarGraph &bar = w.addBar(100, 200);
    w.world.state.catalogue.live[5].DisplayName = "<b>Speed</b> [km/h]"; // no tag
    bar.bindVariable(5);
    test::press(w, Qt::Key_Right);
    EXPECT_EQ(w.text("lblCurrent"), "Bar Graph, <b>Speed</b> [km/h], at 101, 200");
    QHelpEvent help(QEvent::ToolTip, {110, 210}, w.canvas().mapToGlobal(QPoint(110, 210)));
    QApplication::sendEvent(&w.canvas(), &help);
    EXPECT_EQ(QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText(), w.text("lblCurrent"));
    test::press(w, Qt::Key_Delete);
    EXPECT_EQ(w.text("lblCurrent"), "");
}

} // namespace
