#include "surface/safe_areas.h"

namespace surface {

namespace {

constexpr double CrossShare = 0.02; // of the width, to each side of the middle

QRectF centred(QSizeF picture, double share)
{
    const QSizeF size = picture * share;
    return {QPointF((picture.width() - size.width()) / 2, (picture.height() - size.height()) / 2), size};
}

} // namespace

void paintSafeAreas(QPainter &painter, QSize picture)
{
    const QPointF middle = centred(picture, 0).center();
    const double arm = CrossShare * picture.width();
    // White upon black, to be seen on any picture.
    for (const QPen &pen : {QPen(QColor(0, 0, 0, 160), 3), QPen(QColor(255, 255, 255, 220), 1)}) {
        painter.setPen(pen);
        painter.drawRect(centred(picture, ActionSafe).toRect());
        painter.drawRect(centred(picture, TitleSafe).toRect());
        painter.drawLine(middle - QPointF(arm, 0), middle + QPointF(arm, 0));
        painter.drawLine(middle - QPointF(0, arm), middle + QPointF(0, arm));
    }
}

} // namespace surface
