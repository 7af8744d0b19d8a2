// Mouse, keys and focus of a control: what the user does to it, told to the surface as signals.

#include "controls/overlay_control.h"
#include "platform/guards.h"

#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>

namespace controls {

using platform::skipFailures;

namespace {

Qt::CursorShape pointerOf(std::optional<Handle> handle)
{
    if (!handle)
        return Qt::SizeAllCursor;
    switch (*handle) {
    case Handle::TopLeft:
    case Handle::BottomRight:
        return Qt::SizeFDiagCursor;
    case Handle::TopRight:
    case Handle::BottomLeft:
        return Qt::SizeBDiagCursor;
    case Handle::TopMiddle:
    case Handle::BottomMiddle:
        return Qt::SizeVerCursor;
    case Handle::LeftMiddle:
    case Handle::RightMiddle:
        return Qt::SizeHorCursor;
    }
    return Qt::SizeAllCursor;
}

// The control had the focus before a menu or another window took it: nothing was chosen anew.
bool isGivenBack(Qt::FocusReason reason)
{
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

} // namespace

// The control may have moved since the event was made, so its place on the screen decides.
QPointF OverlayControl::twipsOf(const QMouseEvent &event) const
{
    const QPointF pixels = mapFromGlobal(event.globalPosition());
    return {pixels.x() * static_cast<double>(screen().tx), pixels.y() * static_cast<double>(screen().ty)};
}

void OverlayControl::mousePressEvent(QMouseEvent *event)
{
    if (isFrozen())
        return;
    const bool ctrl = event->modifiers() == Qt::ControlModifier;
    const bool plain = event->modifiers() == Qt::NoModifier;
    if (event->button() == Qt::RightButton && (ctrl || plain)) {
        m_isGrouped = m_isGrouped || ctrl;
        skipFailures([&] { showMenu(event->globalPosition().toPoint()); });
        return;
    }
    m_dragStart = twipsOf(*event);
    m_handleIndex = handleAt(m_handleTable, m_dragStart);
    m_gesture = m_handleIndex ? Gesture::Resizing : Gesture::None;
    m_hasMoved = false;
    m_leftDeadZone = false;
    const bool toggles = event->button() == Qt::LeftButton && ctrl;
    skipFailures([&] { toggles ? toggleGroup() : select(); });
}

void OverlayControl::showMenu(const QPoint &globalPosition)
{
    if (m_isGrouped)
        m_host.showGroupMenu(globalPosition);
    else
        m_host.showControlMenu(*this, globalPosition);
}

void OverlayControl::startDrag()
{
    if (m_gesture == Gesture::Resizing)
        return;
    m_gesture = Gesture::Dragging;
    emit ResetControlGroup();
}

void OverlayControl::toggleGroup()
{
    m_isGrouped = !m_isGrouped;
    if (m_isGrouped)
        startDrag();
    setGridColour(m_isGrouped ? FrameGrouped : FrameNormal);
}

void OverlayControl::select()
{
    startDrag();
    if (!m_isGrouped)
        m_host.ResetControlGridColour();
    setGridColour(m_isGrouped ? FrameGrouped : FrameSelected);
}

void OverlayControl::mouseMoveEvent(QMouseEvent *event)
{
    if (isFrozen()) {
        unsetCursor();
        return;
    }
    const QPointF position = twipsOf(*event);
    if (m_gesture != Gesture::None && event->buttons() == Qt::NoButton)
        m_gesture = Gesture::None; // the release went elsewhere
    m_hasMoved = m_hasMoved || position != m_dragStart;
    if (m_gesture == Gesture::Resizing) {
        emit ResizeDrag(*m_handleIndex, static_cast<float>(position.x()), static_cast<float>(position.y()));
    } else if (m_gesture == Gesture::Dragging) {
        setCursor(Qt::SizeAllCursor);
        emit Drag(static_cast<float>(m_dragStart.x()), static_cast<float>(m_dragStart.y()),
                  static_cast<float>(position.x()), static_cast<float>(position.y()));
    } else {
        m_handleIndex = handleAt(m_handleTable, position);
        setCursor(pointerOf(m_handleIndex));
    }
}

void OverlayControl::mouseReleaseEvent(QMouseEvent *event)
{
    if (isFrozen())
        return;
    const QPointF position = twipsOf(*event);
    const Gesture finished = std::exchange(m_gesture, Gesture::None);
    if (finished == Gesture::Resizing && m_hasMoved) {
        emit Resize(*m_handleIndex, static_cast<float>(position.x()), static_cast<float>(position.y()));
    } else if (finished == Gesture::Dragging) {
        emit Relocate(static_cast<float>(m_dragStart.x()), static_cast<float>(m_dragStart.y()),
                      static_cast<float>(position.x()), static_cast<float>(position.y()));
    }
    if (m_isGrouped)
        m_host.RefreshBackground();
    emit DrawBack();
    update();
}

void OverlayControl::keyPressEvent(QKeyEvent *event)
{
    if (isFrozen())
        return;
    switch (event->key()) {
    case Qt::Key_Left:
        skipFailures([&] { nudge(-1, 0); });
        break;
    case Qt::Key_Up:
        skipFailures([&] { nudge(0, -1); });
        break;
    case Qt::Key_Right:
        skipFailures([&] { nudge(1, 0); });
        break;
    case Qt::Key_Down:
        skipFailures([&] { nudge(0, 1); });
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        mnuProperties_Click();
        break;
    case Qt::Key_Delete:
        if (!event->isAutoRepeat()) // a key that is held deletes this control only
            mnuDelete_Click();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void OverlayControl::keyReleaseEvent(QKeyEvent *event)
{
    if (!isFrozen())
        emit DrawBack();
    QWidget::keyReleaseEvent(event);
}

void OverlayControl::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    if (isFrozen() || isGivenBack(event->reason()))
        return;
    // A press with Ctrl adds to the group and so must not clear it.
    const bool joinsGroup = event->reason() == Qt::MouseFocusReason &&
                            QGuiApplication::keyboardModifiers() == Qt::ControlModifier;
    if (!m_isGrouped && !joinsGroup && !m_host.isCapturing()) {
        m_host.ResetControlGridColour();
        setGridColour(FrameSelected);
    }
    emit BringToFront();
}

// The menu key opens the same menu as the right button, which has been served at the press.
void OverlayControl::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Keyboard && !isFrozen())
        skipFailures([&] { showMenu(mapToGlobal(rect().center())); });
}

void OverlayControl::dragEnterEvent(QDragEnterEvent *event)
{
    if (!isFrozen() && takesVariable() && event->mimeData()->hasFormat(VariableMime))
        event->acceptProposedAction();
}

void OverlayControl::dropEvent(QDropEvent *event)
{
    skipFailures([&] { bindVariable(event->mimeData()->data(VariableMime).toInt()); });
    event->acceptProposedAction();
}

// Arrow keys nudge the control; they do not walk to another shortcut or widget.
bool OverlayControl::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && !isFrozen()) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if ((key >= Qt::Key_Left && key <= Qt::Key_Down) || key == Qt::Key_Delete) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

} // namespace controls
