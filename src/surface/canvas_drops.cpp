// What may be dropped on the canvas: entries of the library anywhere, variables on a control that shows one.

#include "platform/guards.h"
#include "surface/canvas.h"

#include <QDragEnterEvent>
#include <QMimeData>

namespace surface {

bool Canvas::takesDrop(const QDropEvent &event) const
{
    if (m_isPlayMode)
        return false;
    if (!event.mimeData()->hasFormat(VariableMime))
        return event.mimeData()->hasFormat(LibraryMime);
    const controls::OverlayControl *control = controlAt(m_zoom.toCanvas(event.position()));
    return control && control->takesVariable();
}

void Canvas::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasFormat(LibraryMime) || event->mimeData()->hasFormat(VariableMime))
        event->acceptProposedAction(); // and be told of its movements
}

void Canvas::dragMoveEvent(QDragMoveEvent *event)
{
    if (takesDrop(*event))
        event->acceptProposedAction();
    else
        event->ignore();
}

void Canvas::dropEvent(QDropEvent *event)
{
    if (!takesDrop(*event))
        return;
    event->acceptProposedAction();
    const QPointF at = m_zoom.toCanvas(event->position());
    const QMimeData &carried = *event->mimeData();
    if (carried.hasFormat(LibraryMime))
        emit dropped(QString::fromUtf8(carried.data(LibraryMime)), twips(at));
    else
        platform::skipFailures([&] { controlAt(at)->bindVariable(carried.data(VariableMime).toInt()); });
}

} // namespace surface
