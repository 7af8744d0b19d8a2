#include "surface/overlay_picture.h"

#include "platform/guards.h"

namespace surface {

using controls::Composition;
using controls::OverlayControl;

QImage groundOf(QSize canvas, const QImage &background)
{
    QImage ground(canvas, QImage::Format_RGB32);
    ground.fill(Qt::black);
    QPainter(&ground).drawImage(0, 0, background);
    return ground;
}

Composition composed(const QImage &ground, const QRect &area, const ControlList &order,
                     controls::Drawing drawing)
{
    const QRect part = area & ground.rect();
    if (part.isEmpty())
        return {};
    Composition composition{ground.copy(part), part.topLeft(), drawing};
    for (const OverlayControl *control : order) {
        if (control->drawnArea().intersects(part))
            platform::skipFailures([&] { control->paint(composition); });
    }
    return composition;
}

QImage overlayPicture(const QImage &ground, const ControlList &order)
{
    return composed(ground, ground.rect(), order, controls::Drawing::Recorded).picture;
}

} // namespace surface
