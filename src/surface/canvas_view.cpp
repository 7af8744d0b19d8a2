#include "surface/canvas_view.h"

#include "surface/canvas.h"

#include <QScrollBar>
#include <QWheelEvent>

#include <cstdlib>

namespace surface {

CanvasView::CanvasView(Canvas &canvas) : m_canvas(canvas)
{
    setWidget(&canvas);
    setAlignment(Qt::AlignCenter);
    setFrameShape(QFrame::NoFrame);
    setBackgroundRole(QPalette::Mid);
    setFocusProxy(&canvas);
    setAccessibleName(QStringLiteral("Design canvas, scrolled"));
    connect(&canvas, &Canvas::tracked, this, [this](QPoint pixel) { reveal({pixel, QSize(1, 1)}); });
}

int CanvasView::zoom() const { return m_canvas.zoom().percent(); }

void CanvasView::setZoom(int percent)
{
    m_isFitting = false;
    zoomAround(percent, QRectF(viewport()->rect()).center());
}

void CanvasView::stepZoom(bool larger) { setZoom(nextZoom(zoom(), larger)); }

void CanvasView::setFitting(bool fitting)
{
    m_isFitting = fitting;
    fit();
}

void CanvasView::fit()
{
    if (!m_isFitting || m_canvas.canvasSize().isEmpty()) // not displayed yet
        return;
    const int fitting = fittingZoom(m_canvas.canvasSize(), maximumViewportSize());
    if (fitting != zoom())
        zoomAround(fitting, {});
}

// `kept`, a point of the viewport, goes on showing what it shows.
void CanvasView::zoomAround(int percent, QPointF kept)
{
    const QPointF below = m_canvas.zoom().toCanvas(m_canvas.mapFrom(viewport(), kept));
    m_canvas.setZoom(percent);
    const QPoint corner = (m_canvas.zoom().shown(below) - kept).toPoint();
    horizontalScrollBar()->setValue(corner.x());
    verticalScrollBar()->setValue(corner.y());
    emit zoomChanged();
}

void CanvasView::reveal(const QRect &area)
{
    const QRect place = m_canvas.zoom().shown(area);
    const QPoint middle = place.center();
    ensureVisible(middle.x(), middle.y(), place.width() / 2 + 1, place.height() / 2 + 1);
}

void CanvasView::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    fit();
}

void CanvasView::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QScrollArea::wheelEvent(event);
        return;
    }
    m_turned += event->angleDelta().y();
    const int steps = m_turned / QWheelEvent::DefaultDeltasPerStep;
    m_turned %= QWheelEvent::DefaultDeltasPerStep;
    for (int step = 0; step < std::abs(steps); ++step) {
        m_isFitting = false;
        zoomAround(nextZoom(zoom(), steps > 0), event->position());
    }
    event->accept();
}

} // namespace surface
