#include "surface/frame_painter.h"

namespace surface {

using controls::OverlayControl;

namespace {

// Diagonal bands 60 twips wide, 80 apart.
constexpr double Step = 140;
constexpr double Band = 60;
constexpr int StepsInTile = 3; // 28 pixels, the least that are whole

// A tile of the hatch: wherever it is repeated, its bands meet.
QPixmap hatchTile(const platform::Screen &screen, const QColor &behind, const QColor &bands, double ratio)
{
    const QPoint far = screen.toPixels(QPointF(StepsInTile * Step, StepsInTile * Step)).toPoint();
    const QSize size(far.x(), far.y());
    QPixmap tile((QSizeF(size) * ratio).toSize());
    tile.fill(behind);
    QPainter painter(&tile);
    painter.setPen(Qt::NoPen);
    painter.setBrush(bands);
    painter.scale(tile.width() / (StepsInTile * Step), tile.height() / (StepsInTile * Step)); // to twips
    for (int n = 0; n < 2 * StepsInTile; ++n) {
        const double i = n * Step;
        const QPointF band[] = {{0, i}, {0, i + Band}, {i + Band, 0}, {i, 0}};
        painter.drawConvexPolygon(band, 4);
    }
    painter.end();
    tile.setDevicePixelRatio(ratio);
    return tile;
}

void paintGrips(QPainter &painter, const OverlayControl &control, const platform::Screen &screen)
{
    const QPoint corner = control.outerRect().topLeft();
    for (const controls::GripBox &grip : control.handles()) {
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
    QPixmap &tile = m_hatches[gridColour];
    if (tile.isNull() || tile.devicePixelRatio() != ratio) {
        const QColor behind =
            gridColour == controls::FrameNormal ? QColor(Qt::white) : controls::toQColor(gridColour);
        tile = hatchTile(m_screen, behind, m_bands, ratio);
    }
    return tile;
}

void FramePainter::paint(QPainter &painter, const OverlayControl &control)
{
    if (control.mode() == OverlayControl::Mode::Play)
        return;
    const QPixmap &tile = hatch(control.gridColour(), painter.device()->devicePixelRatioF());
    const QRect outer = control.outerRect();
    for (const QRect &strip : QRegion(outer) - control.innerRect())
        painter.drawTiledPixmap(strip, tile, strip.topLeft() - outer.topLeft());
    paintGrips(painter, control, m_screen);
}

} // namespace surface
