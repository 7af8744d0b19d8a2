// Mouse and keys of the canvas: the contract's order of events, in one place.

#include "platform/guards.h"
#include "surface/canvas.h"
#include "surface/control_text.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace surface {

using controls::Handle;
using controls::OverlayControl;
using platform::skipFailures;

namespace {

constexpr int WideStep = 10; // pixels of an arrow key with Shift

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
    const auto factor = static_cast<float>(m_zoom.factor());
    const QPointF at = m_rules.screen.toTwips(m_zoom.shown(pixels));
    return controls::handleAt(control.handles(factor),
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
    if (opensMenu)
        showMenu(control, event.globalPosition().toPoint());
    else
        startGesture(control, event.position(), !toggles || control.IsSelectedToGroup());
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
        hover(event->position());
    else
        track(twips(event->position()));
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
    if (!m_gesture.begins(at, m_rules.screen))
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

void Canvas::escape()
{
    if (m_gesture.kind() == Gesture::Kind::None) {
        chooseNone();
        return;
    }
    skipFailures([&] { m_gesture.takeBack(); });
    if (const auto control = m_gesture.control())
        showPosition(*control);
    endGesture();
}

void Canvas::selectAll()
{
    for (OverlayControl *control : m_controls.controls())
        m_selection.setGrouped(*control, true);
    emit selectionChanged();
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

void Canvas::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Delete && event->isAutoRepeat())
        return; // a key that is held deletes one control only
    if (event->matches(QKeySequence::SelectAll) && !m_isPlayMode) {
        selectAll();
        return;
    }
    bool isOurs = true;
    const int step = event->modifiers() & Qt::ShiftModifier ? WideStep : 1;
    skipFailures([&] { isOurs = applyKey(event->key(), step); });
    if (!isOurs)
        QWidget::keyPressEvent(event);
}

void Canvas::pressKey(Qt::Key key)
{
    skipFailures([&] { applyKey(key); });
}

bool Canvas::applyKey(int key, int step)
{
    if (m_isPlayMode)
        return false;
    if (key == Qt::Key_Escape) {
        escape();
        return true;
    }
    OverlayControl *control = current();
    if (!control)
        return false;
    const auto nudge = [&](int dx, int dy) {
        control->nudge(dx * step, dy * step);
        return true;
    };
    switch (key) {
    case Qt::Key_Left:
        return nudge(-1, 0);
    case Qt::Key_Up:
        return nudge(0, -1);
    case Qt::Key_Right:
        return nudge(1, 0);
    case Qt::Key_Down:
        return nudge(0, 1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        control->mnuProperties_Click();
        return true;
    case Qt::Key_Delete:
        control->mnuDelete_Click();
        return true;
    default:
        return false;
    }
}

// The menu key opens the same menu as the right button, which has been served at its press.
void Canvas::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() != QContextMenuEvent::Keyboard || m_isPlayMode)
        return;
    const OverlayControl *control = current();
    const QPoint middle = (control ? control->outerRect() : m_ground.rect()).center();
    const QPoint place = mapToGlobal(m_zoom.shown(QPointF(middle))).toPoint();
    if (control)
        showMenu(*control, place);
    else
        showCanvasMenu(twips(middle), place);
}

// A canvas without controls to step to, or one that is being closed, lets the focus go.
bool Canvas::focusNextPrevChild(bool forward)
{
    if (!isVisible() || m_isPlayMode || m_controls.controls().isEmpty())
        return QWidget::focusNextPrevChild(forward);
    emit stepped(forward);
    return true;
}

void Canvas::showToolTip(const QHelpEvent &event)
{
    const OverlayControl *control = m_isPlayMode ? nullptr : controlAt(m_zoom.toCanvas(event.pos()));
    if (control)
        QToolTip::showText(event.globalPos(), controlText(*control), this,
                           m_zoom.shown(control->outerRect()));
    else
        QToolTip::hideText();
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

// Keys of the current control are no shortcuts.
bool Canvas::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        return mouseEvent(*static_cast<QMouseEvent *>(event));
    case QEvent::ToolTip:
        showToolTip(*static_cast<QHelpEvent *>(event));
        return true;
    default:
        break;
    }
    if (event->type() == QEvent::ShortcutOverride && current() && !m_isPlayMode) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if ((key >= Qt::Key_Left && key <= Qt::Key_Down) || key == Qt::Key_Delete) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

} // namespace surface
