#include "surface/canvas_picture.h"

namespace surface {

using controls::Composition;
using controls::OverlayControl;

namespace {

constexpr int MostPieces = 16; // of a touched region, before its bounds take their place

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

void CanvasPicture::touch(const QRect &area)
{
    m_touched += area & m_ground.rect();
    if (m_touched.rectCount() > MostPieces)
        m_touched = m_touched.boundingRect();
}

void CanvasPicture::refresh(const ControlList &resting, double ratio)
{
    const QSize screenSize = (QSizeF(m_ground.size()) * ratio).toSize();
    if (m_frames.size() != screenSize) {
        m_frames = QImage(screenSize, QImage::Format_ARGB32_Premultiplied);
        m_frames.setDevicePixelRatio(ratio);
        m_touched = m_ground.rect();
    }
    const QRegion touched = std::exchange(m_touched, {});
    for (const QRect &area : touched) {
        const Composition part = composed(m_ground, area, resting, m_drawing);
        QPainter(&m_composed).drawImage(part.corner, part.picture);
        refreshFrames(resting, area);
    }
}

void CanvasPicture::refreshFrames(const ControlList &resting, const QRect &area)
{
    QPainter painter(&m_frames);
    painter.setClipRect(area);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(area, Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    for (const OverlayControl *control : resting) {
        if (control->outerRect().intersects(area))
            m_framePainter.paint(painter, *control);
    }
}

void CanvasPicture::paint(QPainter &painter, const QRect &area, const ControlList &order,
                          const ControlList &lifted)
{
    const double ratio = painter.device()->devicePixelRatioF();
    if (!m_touched.isEmpty() || m_frames.devicePixelRatio() != ratio) {
        ControlList resting = order;
        resting.removeIf([&lifted](OverlayControl *control) { return lifted.contains(control); });
        refresh(resting, ratio);
    }
    paintOverlay(painter, area, lifted);
    painter.drawImage(QRectF(area), m_frames,
                      QRectF(QPointF(area.topLeft()) * ratio, QSizeF(area.size()) * ratio));
    for (const OverlayControl *control : lifted)
        m_framePainter.paint(painter, *control);
}

void CanvasPicture::paintOverlay(QPainter &painter, const QRect &area, const ControlList &lifted) const
{
    painter.drawImage(area, m_composed, area);
    QRect drawn;
    for (const OverlayControl *control : lifted)
        drawn |= control->drawnArea();
    const Composition part = composed(m_composed, area & drawn, lifted, m_drawing);
    painter.drawImage(part.corner, part.picture);
}

} // namespace surface
