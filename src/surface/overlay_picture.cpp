#include "surface/overlay_picture.h"

#include <QPainter>

namespace surface {

using controls::OverlayControl;

namespace {

void paintControl(QPainter &painter, const OverlayControl &control)
{
    painter.save();
    control.paintPreview(painter);
    painter.restore();
}

} // namespace

QImage overlayPicture(QSize canvas, const QPixmap &background, const QList<OverlayControl *> &bottomToTop)
{
    QImage picture(canvas, QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    painter.drawPixmap(0, 0, background);
    for (const OverlayControl *control : bottomToTop)
        paintControl(painter, *control);
    return picture;
}

QImage pictureBelow(const OverlayControl &control, const QPixmap &backdrop,
                    const QList<OverlayControl *> &bottomToTop)
{
    const QRect inner = control.innerRect().translated(control.pos());
    if (inner.isEmpty())
        return {};
    QImage picture(inner.size(), QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    painter.translate(-inner.topLeft());
    painter.drawPixmap(inner, backdrop, inner);
    for (const OverlayControl *lower : bottomToTop) {
        if (lower == &control)
            break;
        if (lower->geometry().intersects(inner))
            paintControl(painter, *lower);
    }
    return picture;
}

} // namespace surface
