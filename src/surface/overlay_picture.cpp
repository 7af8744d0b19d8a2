#include "surface/overlay_picture.h"

#include "platform/guards.h"

namespace surface {

using controls::Composition;
using controls::OverlayControl;

QImage groundOf(QSize canvas, const QImage &background)
{
    if (background.size() == canvas && background.format() == QImage::Format_RGB32)
        return background;
    QImage ground(canvas, QImage::Format_RGB32);
    ground.fill(Qt::black);
    QPainter(&ground).drawImage(0, 0, background);
    return ground;
}

Composition composed(QImage ground, const QRect &area, const ControlList &order, controls::Drawing drawing)
{
    const QRect part = area & ground.rect();
    if (part.isEmpty())
        return {};
    // The whole ground is shared until something is drawn on it.
    QImage picture = part == ground.rect() ? std::move(ground) : ground.copy(part);
    Composition composition{std::move(picture), part.topLeft(), drawing};
    for (const OverlayControl *control : order) {
        if (control->drawnArea().intersects(part))
            platform::skipFailures([&] { control->paint(composition); });
    }
    return composition;
}

QImage overlayPicture(QImage ground, const ControlList &order)
{
    const QRect all = ground.rect();
    return composed(std::move(ground), all, order, controls::Drawing::Recorded).picture;
}

} // namespace surface
