// The mouse on the canvas: the contract's order of events, in one place.

#include "platform/desktop/tool_tip.h"
#include "platform/guards.h"
#include "surface/canvas.h"
#include "surface/control_text.h"
#include "surface/shown_grips.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <utility>

namespace surface {

using controls::Handle;
using controls::OverlayControl;
using platform::skipFailures;

namespace {

Qt::CursorShape pointerOf(std::optional<Handle> handle)
{
    if (!handle)
        return Qt::SizeAllCursor;
    if (*handle == Handle::TopLeft || *handle == Handle::BottomRight)
        return Qt::SizeFDiagCursor;
    if (*handle == Handle::TopRight || *handle == Handle::BottomLeft)
        return Qt::SizeBDiagCursor;
    return movesLeft(*handle) || movesRight(*handle) ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

// Where the canvas is shown smaller the hand trembles over more of its pixels.
platform::Screen underHand(const platform::Screen &screen, const Zoom &zoom)
{
    const auto shrinking = static_cast<float>(std::min(zoom.factor(), 1.0));
    return {screen.tx / shrinking, screen.ty / shrinking};
}

// The canvas pixel that holds the point.
QPoint pixelAt(QPointF point)
{
    return {static_cast<int>(std::floor(point.x())), static_cast<int>(std::floor(point.y()))};
}

} // namespace

// On a fine screen the pointer stands between canvas pixels, where no layout can hold a control.
QPointF Canvas::twips(QPointF pixels) const { return m_rules.screen.toTwips(QPointF(pixelAt(pixels))); }

OverlayControl *Canvas::controlAt(QPointF pixels) const
{
    const QPoint pixel = pixelAt(pixels);
    const ControlList &stack = m_controls.stack();
    const auto top = std::find_if(stack.rbegin(), stack.rend(), [pixel](const OverlayControl *control) {
        return control->outerRect().contains(pixel);
    });
    return top == stack.rend() ? nullptr : *top;
}

// The grips are as large at every zoom.
std::optional<Handle> Canvas::handleAt(const OverlayControl &control, QPointF pixels) const
{
    const QPointF at = m_rules.screen.toTwips(m_zoom.shown(pixels));
    return controls::handleAt(shownGrips(control, m_zoom),
                              at - QPointF(control.box().Left, control.box().Top) * m_zoom.factor());
}

void Canvas::mousePressEvent(QMouseEvent *event)
{
    endGesture();
    if (m_isPlayMode)
        return;
    if (OverlayControl *control = controlAt(event->position()))
        skipFailures([&] { pressControl(*control, *event); });
    else
        pressEmpty(*event);
}

// Opens the property dialog, which takes the release.
void Canvas::mouseDoubleClickEvent(QMouseEvent *event)
{
    mousePressEvent(event);
    if (event->button() != Qt::LeftButton || event->modifiers() != Qt::NoModifier ||
        m_gesture.kind() == Gesture::Kind::Band)
        return;
    endGesture();
    pressKey(Qt::Key_Return);
}

void Canvas::pressControl(OverlayControl &control, const QMouseEvent &event)
{
    const bool ctrl = event.modifiers() == Qt::ControlModifier;
    const bool opensMenu = event.button() == Qt::RightButton && (ctrl || event.modifiers() == Qt::NoModifier);
    const bool toggles = event.button() == Qt::LeftButton && ctrl;
    if (toggles || (opensMenu && ctrl))
        m_selection.setGrouped(control, opensMenu || !control.IsSelectedToGroup());
    else
        m_selection.select(control);
    BringToFront(control);
    if (opensMenu) {
        emit pressed(twips(event.position()));
        showMenu(control, event.globalPosition().toPoint());
    } else {
        startGesture(control, event.position(), !toggles || control.IsSelectedToGroup());
    }
}

void Canvas::startGesture(OverlayControl &control, QPointF pixels, bool drags)
{
    const QPointF at = twips(pixels);
    if (const auto handle = handleAt(control, pixels))
        m_gesture = Gesture::resizing(control, *handle, at);
    else if (drags)
        m_gesture = Gesture::dragging(control, at, ResetControlGroup(control));
}

GroupDrag Canvas::ResetControlGroup(const OverlayControl &control) const
{
    return control.IsSelectedToGroup() ? GroupDrag(control, groupOf(m_controls.controls())) : GroupDrag();
}

void Canvas::pressEmpty(const QMouseEvent &event)
{
    const QPointF at = twips(event.position());
    if (event.button() == Qt::RightButton)
        showCanvasMenu(at, event.globalPosition().toPoint());
    if (event.button() != Qt::LeftButton)
        return;
    chooseNone();
    m_gesture = Gesture::band(at);
    setBand(QRect(event.position().toPoint(), QSize(0, 0)));
    emit pressed(at);
}

void Canvas::showMenu(const OverlayControl &control, const QPoint &globalPosition)
{
    if (control.IsSelectedToGroup())
        emit groupMenuRequested(globalPosition);
    else
        emit controlMenuRequested(globalPosition);
}

void Canvas::showCanvasMenu(QPointF at, const QPoint &globalPosition)
{
    emit pressed(at);
    emit canvasMenuRequested(globalPosition);
}

void Canvas::mouseMoveEvent(QMouseEvent *event)
{
    if (m_gesture.kind() != Gesture::Kind::None && event->buttons() == Qt::NoButton)
        endGesture(); // a menu or another window took the release
    if (m_gesture.kind() == Gesture::Kind::None)
        return hover(event->position());
    track(twips(event->position()));
    emit tracked(event->position().toPoint());
}

void Canvas::hover(QPointF pixels)
{
    const OverlayControl *control = m_isPlayMode ? nullptr : controlAt(pixels);
    if (control) {
        setCursor(pointerOf(handleAt(*control, pixels)));
        return;
    }
    unsetCursor();
    emit positionShown(positionText(twips(pixels), m_rules.screen));
}

// One step of the gesture, live.
void Canvas::track(QPointF at)
{
    if (m_gesture.kind() == Gesture::Kind::Band) {
        const platform::Screen &screen = m_rules.screen;
        setBand(
            QRect(screen.toPixels(m_gesture.press()).toPoint(), screen.toPixels(at).toPoint()).normalized());
        emit positionShown(positionText(at, m_rules.screen));
        return;
    }
    if (m_gesture.kind() == Gesture::Kind::Dragging)
        setCursor(Qt::SizeAllCursor);
    if (!m_gesture.begins(at, underHand(m_rules.screen, m_zoom)))
        return;
    if (m_lifted.isEmpty())
        lift();
    skipFailures([&] { m_gesture.follow(at, m_rules); });
    emit designChanged();
    showPosition(*m_gesture.control());
}

// What the gesture moves stands above all others from its first movement on.
void Canvas::lift()
{
    const ControlList moving = m_gesture.moving();
    for (OverlayControl *control : m_controls.stack()) {
        if (!moving.contains(control))
            continue;
        m_lifted.append(control);
        m_picture.touch(control->area()); // all others without it, from now on
    }
}

void Canvas::mouseReleaseEvent(QMouseEvent *event)
{
    const Gesture::Kind kind = m_gesture.kind();
    const QPointF press = m_gesture.press();
    const QPointF at = twips(event->position());
    const bool isBand = kind == Gesture::Kind::Band;
    if (kind == Gesture::Kind::None || (isBand && event->button() != Qt::LeftButton))
        return;
    if (!isBand)
        track(at);
    endGesture();
    if (isBand)
        selectBand(press, at);
}

void Canvas::endGesture()
{
    m_gesture = {};
    for (OverlayControl *landed : std::exchange(m_lifted, {}))
        landed->redraw();
    setBand(std::nullopt);
}

void Canvas::selectBand(QPointF start, QPointF end)
{
    if (!isSelectingBand(start, end))
        return;
    for (OverlayControl *control : m_controls.controls()) {
        if (bandHolds(start, end, control->box()))
            m_selection.setGrouped(*control, true);
    }
    emit selectionChanged();
}

void Canvas::showToolTip(const QHelpEvent &event)
{
    const OverlayControl *control = m_isPlayMode ? nullptr : controlAt(m_zoom.toCanvas(event.pos()));
    if (control) {
        QToolTip::showText(event.globalPos(), platform::toolTipOf(controlText(*control)), this,
                           m_zoom.shown(control->outerRect()));
    } else {
        QToolTip::hideText();
    }
}

// The handlers of the mouse are told canvas pixels.
bool Canvas::mouseEvent(QMouseEvent &event)
{
    QMouseEvent onCanvas(event.type(), m_zoom.toCanvas(event.position()), event.scenePosition(),
                         event.globalPosition(), event.button(), event.buttons(), event.modifiers(),
                         event.source(), event.pointingDevice());
    const bool isHandled = QWidget::event(&onCanvas);
    event.setAccepted(onCanvas.isAccepted());
    return isHandled;
}

} // namespace surface
