// The keys of the canvas, and which handler serves which event.

#include "platform/guards.h"
#include "surface/canvas.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace surface {

using controls::OverlayControl;
using platform::skipFailures;

namespace {

constexpr int WideStep = 10; // pixels of an arrow key with Shift

} // namespace

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
