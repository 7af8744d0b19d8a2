#include "surface/frame_painter.h"

#include "surface/shown_grips.h"

#include <algorithm>

namespace surface {

using controls::OverlayControl;

namespace {

// Diagonal bands 60 twips wide, 80 apart.
constexpr double Step = 140;
constexpr double Band = 60;
constexpr int StepsInPeriod = 3; // 28 pixels, the least that are whole
constexpr int Periods = 8;       // in the cached picture, of which one is spare

// After so many canvas pixels the hatch repeats itself.
QSize hatchPeriod(const platform::Screen &screen)
{
    const QPoint far = screen.toPixels(QPointF(StepsInPeriod * Step, StepsInPeriod * Step)).toPoint();
    return {far.x(), far.y()};
}

QPixmap hatchPicture(QSize period, const QColor &behind, const QColor &bands, double ratio)
{
    constexpr int Steps = StepsInPeriod * Periods;
    QPixmap picture((QSizeF(period) * Periods * ratio).toSize());
    picture.fill(behind);
    QPainter painter(&picture);
    painter.setPen(Qt::NoPen);
    painter.setBrush(bands);
    painter.scale(picture.width() / (Steps * Step), picture.height() / (Steps * Step)); // to twips
    for (int n = 0; n < 2 * Steps; ++n) {
        const double i = n * Step;
        const QPointF band[] = {{0, i}, {0, i + Band}, {i + Band, 0}, {i, 0}};
        painter.drawConvexPolygon(band, 4);
    }
    painter.end();
    picture.setDevicePixelRatio(ratio);
    return picture;
}

// Fills `strip` with the hatch that begins at `origin`, in pieces that are copied: a brush or a tiled picture
// would be shared out among threads, which takes longer than the frame of a control.
void paintHatch(QPainter &painter, const QPixmap &hatch, QSize period, const QRect &strip, QPoint origin)
{
    const double ratio = hatch.devicePixelRatio();
    const QSize step = period * (Periods - 1);
    for (int y = strip.top(); y <= strip.bottom(); y += step.height()) {
        for (int x = strip.left(); x <= strip.right(); x += step.width()) {
            const QRect piece = QRect(QPoint(x, y), step) & strip;
            const QPoint phase((x - origin.x()) % period.width(), (y - origin.y()) % period.height());
            painter.drawPixmap(QRectF(piece), hatch,
                               QRectF(QPointF(phase) * ratio, QSizeF(piece.size()) * ratio));
        }
    }
}

void paintGrips(QPainter &painter, const OverlayControl &control, const platform::Screen &screen,
                const Zoom &zoom)
{
    const QPoint corner = zoom.shown(control.outerRect()).topLeft();
    for (const controls::GripBox &grip : shownGrips(control, zoom)) {
        if (!grip.isFilled())
            continue;
        const QRect box(screen.toPixels(QPointF(grip.Left, grip.Top)).toPoint(),
                        screen.toPixels(QPointF(grip.Right, grip.Bottom)).toPoint() - QPoint(1, 1));
        painter.fillRect(box.translated(corner), Qt::black);
        painter.fillRect(box.translated(corner).adjusted(1, 1, -1, -1), Qt::white);
    }
}

} // namespace

const QPixmap &FramePainter::hatch(quint32 gridColour, double ratio)
{
    QPixmap &hatch = m_hatches[gridColour];
    if (hatch.isNull() || hatch.devicePixelRatio() != ratio) {
        const QColor behind =
            gridColour == controls::FrameNormal ? QColor(Qt::white) : controls::toQColor(gridColour);
        hatch = hatchPicture(hatchPeriod(m_screen), behind, m_bands, ratio);
    }
    return hatch;
}

void FramePainter::paint(QPainter &painter, const OverlayControl &control, const Zoom &zoom)
{
    if (control.mode() == OverlayControl::Mode::Play)
        return;
    const QPixmap &picture = hatch(control.gridColour(), painter.device()->devicePixelRatioF());
    const QRect outer = zoom.shown(control.outerRect());
    // Never thicker, and where the control is shown smaller, no wider than beside its graphic.
    const QPoint width =
        (m_screen.toPixels({controls::FrameTwips, controls::FrameTwips}) * std::min(zoom.factor(), 1.0))
            .toPoint();
    const QRect inner = outer.adjusted(width.x(), width.y(), -width.x(), -width.y());
    for (const QRect &strip : QRegion(outer) - inner)
        paintHatch(painter, picture, hatchPeriod(m_screen), strip, outer.topLeft());
    paintGrips(painter, control, m_screen, zoom);
}

} // namespace surface
