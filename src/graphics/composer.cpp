#include "graphics/composer.h"

#include "graphics/plane_kernels.h"
#include "graphics/scan_lines.h"

namespace graphics {

void compose(QImage &surface, QPoint at, const QImage &source, const AlphaPlane &alpha, quint8 level)
{
    if (!alpha.isComplete())
        return;
    const QImage colours = withPixels(source);
    const QRect drawn = QRect(at, colours.size().boundedTo(alpha.size())).intersected(surface.rect());
    if (drawn.isEmpty())
        return;
    surface = withPixels(surface);
    const PlaneKernels &kernels = planeKernels();
    const auto *opacities = reinterpret_cast<const quint8 *>(alpha.values.constData());
    for (int y = drawn.top(); y <= drawn.bottom(); ++y) {
        const QPoint from = QPoint(drawn.left(), y) - at;
        kernels.compose(pixelsOf(surface, y) + drawn.left(), pixelsOf(colours, from.y()) + from.x(),
                        opacities + qsizetype{from.y()} * alpha.width + from.x(), level, drawn.width());
    }
}

} // namespace graphics
