#include "surface/canvas_picture.h"

#include <cmath>
#include <utility>

namespace surface {

using controls::Composition;
using controls::OverlayControl;

namespace {

constexpr int MostPieces = 16; // of a touched region, before its bounds take their place

void add(QRegion &region, const QRect &area)
{
    region += area;
    if (region.rectCount() > MostPieces)
        region = region.boundingRect();
}

QRegion taken(QRegion &region, const QRect &area)
{
    QRegion part = region & area;
    region -= part;
    return part;
}

// Of the frames: where the canvas is shown larger still, they are drawn at each painting.
constexpr qint64 MostKeptPixels = 8'000'000;

bool isKept(QSize size) { return qint64{size.width()} * size.height() <= MostKeptPixels; }

bool isWhole(double factor) { return factor == std::floor(factor); }

} // namespace

void CanvasPicture::reset(const QImage &ground, const FramePainter &frames, controls::Drawing drawing)
{
    m_ground = ground;
    m_composed = ground;
    m_frames = {};
    m_framePainter = frames;
    m_drawing = drawing;
    m_touched = ground.rect();
}

void CanvasPicture::setZoom(const Zoom &zoom)
{
    m_zoom = zoom;
    m_frames = {};
}

void CanvasPicture::touch(const QRect &area)
{
    for (QRegion *region : {&m_touched, &m_touchedFrames})
        add(*region, area & m_ground.rect());
}

void CanvasPicture::refresh(const ControlList &resting, const QRect &area)
{
    for (const QRect &part : taken(m_touched, area)) {
        const Composition fresh = composed(m_ground, part, resting, m_drawing);
        if (fresh.area() == m_ground.rect())
            m_composed = fresh.picture;
        else
            QPainter(&m_composed).drawImage(fresh.corner, fresh.picture);
    }
    for (const QRect &part : taken(m_touchedFrames, area))
        refreshFrames(resting, m_zoom.shown(part));
}

void CanvasPicture::refreshFrames(const ControlList &resting, const QRect &shown)
{
    if (m_frames.isNull())
        return;
    QPainter painter(&m_frames);
    painter.setClipRect(shown);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(shown, Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    for (const OverlayControl *control : resting) {
        if (m_zoom.shown(control->outerRect()).intersects(shown))
            m_framePainter.paint(painter, *control, m_zoom);
    }
}

void CanvasPicture::paint(QPainter &painter, const QRect &shown, const ControlList &order,
                          const ControlList &lifted)
{
    const double ratio = painter.device()->devicePixelRatioF();
    const QSize whole = (QSizeF(m_zoom.shown(m_ground.rect()).size()) * ratio).toSize();
    if (order.isEmpty() || !isKept(whole)) {
        m_frames = {};
    } else if (m_frames.isNull() || m_frames.devicePixelRatio() != ratio) {
        m_frames = QImage(whole, QImage::Format_ARGB32_Premultiplied);
        m_frames.setDevicePixelRatio(ratio);
        m_touchedFrames = m_ground.rect();
    }
    const QRect area = m_zoom.toCanvas(shown).adjusted(-Seam, -Seam, Seam, Seam).intersected(m_ground.rect());
    if (m_touched.intersects(area) || m_touchedFrames.intersects(area)) {
        ControlList resting = order;
        resting.removeIf([&lifted](OverlayControl *control) { return lifted.contains(control); });
        refresh(resting, area);
    }
    paintOverlay(painter, area, lifted);
    if (!m_frames.isNull())
        painter.drawImage(QRectF(shown), m_frames,
                          QRectF(QPointF(shown.topLeft()) * ratio, QSizeF(shown.size()) * ratio));
    for (const OverlayControl *control : m_frames.isNull() ? order : lifted)
        m_framePainter.paint(painter, *control, m_zoom);
}

void CanvasPicture::paintOverlay(QPainter &painter, const QRect &area, const ControlList &lifted) const
{
    QRect drawn;
    for (const OverlayControl *control : lifted)
        drawn |= control->drawnArea();
    const Composition part = composed(m_composed, area & drawn, lifted, m_drawing);
    painter.save();
    painter.scale(m_zoom.factor(), m_zoom.factor());
    painter.setRenderHint(QPainter::SmoothPixmapTransform,
                          !isWhole(m_zoom.factor() * painter.device()->devicePixelRatioF()));
    painter.drawImage(area, m_composed, area);
    painter.drawImage(part.corner, part.picture);
    painter.restore();
}

} // namespace surface
