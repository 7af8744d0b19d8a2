#include "surface/canvas.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

namespace surface {

namespace {

// The pixels below `end` on which the multiples of the spacing fall, each once: a spacing may be finer than
// the pixels.
QList<int> dottedPixels(int spacing, float twipsPerPixel, int end)
{
    QList<int> pixels;
    for (int line = 0;; ++line) {
        const int pixel = static_cast<int>(line * spacing / static_cast<double>(twipsPerPixel));
        if (pixel >= end)
            return pixels;
        if (pixels.isEmpty() || pixel != pixels.last())
            pixels.append(pixel);
    }
}

void paintDots(QPainter &painter, const QSize &size, const CanvasRules &rules)
{
    if (rules.grid.spacing < 1)
        return;
    const QList<int> columns = dottedPixels(rules.grid.spacing, rules.screen.tx, size.width());
    QList<QPoint> dots;
    for (const int row : dottedPixels(rules.grid.spacing, rules.screen.ty, size.height())) {
        for (const int column : columns)
            dots.append({column, row});
    }
    painter.drawPoints(dots.constData(), static_cast<int>(dots.size()));
}

} // namespace

Canvas::Canvas(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("pic"));
    setAccessibleName(QStringLiteral("Design canvas"));
    setMouseTracking(true);
    setAcceptDrops(true);
    setFocusPolicy(Qt::ClickFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Canvas::display(const QPixmap &background, const CanvasRules &rules, bool dots)
{
    m_screen = rules.screen;
    const QSize size(recorder::CanvasWidth, recorder::canvasHeight(rules.standard));
    setFixedSize(size);
    m_picture = QPixmap(size);
    m_picture.fill(Qt::black);
    QPainter(&m_picture).drawPixmap(0, 0, background);
    m_backdrop = m_picture;
    if (dots) {
        QPainter painter(&m_backdrop);
        painter.setPen(palette().color(QPalette::Active, QPalette::WindowText));
        paintDots(painter, size, rules);
    }
    update();
}

QPointF Canvas::twips(QPointF pixels) const
{
    return {pixels.x() * static_cast<double>(m_screen.tx), pixels.y() * static_cast<double>(m_screen.ty)};
}

void Canvas::setBand(const std::optional<QRect> &band)
{
    // Only the old and the new outline are painted again.
    for (const auto &outline : {m_band, band}) {
        if (outline)
            update(outline->adjusted(-1, -1, 2, 2));
    }
    m_band = band;
}

void Canvas::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.drawPixmap(event->rect(), m_backdrop, event->rect());
    if (!m_band)
        return;
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRect(*m_band);
    painter.setPen(QPen(Qt::black, 1, Qt::DashLine));
    painter.drawRect(*m_band);
}

void Canvas::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton) {
        emit rightPressed(twips(event->position()), event->globalPosition().toPoint());
        return;
    }
    if (event->button() != Qt::LeftButton)
        return;
    m_bandStart = event->position().toPoint();
    setBand(QRect(m_bandStart, QSize(0, 0)));
    emit pressed(twips(event->position()));
}

void Canvas::mouseMoveEvent(QMouseEvent *event)
{
    if (m_band && !event->buttons().testFlag(Qt::LeftButton))
        setBand(std::nullopt); // a menu took the release
    if (m_band)
        setBand(QRect(m_bandStart, event->position().toPoint()).normalized());
    emit moved(twips(event->position()));
}

void Canvas::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !m_band)
        return;
    setBand(std::nullopt);
    emit bandFinished(twips(m_bandStart), twips(event->position()));
}

// The menu key; the right button has been served at its press.
void Canvas::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Keyboard)
        emit rightPressed(twips(rect().center()), mapToGlobal(rect().center()));
}

void Canvas::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasFormat(LibraryMime))
        event->acceptProposedAction();
}

void Canvas::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    emit dropped(QString::fromUtf8(event->mimeData()->data(LibraryMime)), twips(event->position()));
}

// The controls ask here too, as their parent. A canvas that is being closed lets the focus go.
bool Canvas::focusNextPrevChild(bool forward)
{
    if (!isVisible())
        return QWidget::focusNextPrevChild(forward);
    emit stepped(forward);
    return true;
}

} // namespace surface
