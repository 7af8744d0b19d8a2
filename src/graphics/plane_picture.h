#pragma once

#include "graphics/planes.h"

namespace graphics {

// A picture together with the planes and the alpha plane that the recorder draws it by. It is converted once,
// when it is made; copies share everything.
class PlanePicture
{
public:
    // No picture.
    PlanePicture() = default;
    // As a user chose it: its planes are padded and the padding is transparent.
    static PlanePicture chosen(const QImage &picture, const QImage &alphaPicture);
    // The same with planes of exactly this size.
    static PlanePicture ofSize(const QImage &picture, const QImage &alphaPicture, QSize size);
    // From a file: the planes are kept as they are. No picture where they are not complete; an alpha plane
    // that is not, or has another size, is taken as opaque.
    static PlanePicture fromFile(const Planes &planes, const AlphaPlane &alpha);

    // The same picture with another alpha.
    PlanePicture withAlpha(const QImage &alphaPicture) const;

    // Whether there are no planes.
    bool isEmpty() const { return m_planes.y.isEmpty(); }
    const Planes &planes() const { return m_planes; }
    const AlphaPlane &alpha() const { return m_alpha; }
    // For the eye: as they were chosen, or the planes as pictures.
    const QImage &picture() const { return m_picture; }
    const QImage &alphaPicture() const { return m_alphaPicture; }

    bool operator==(const PlanePicture &) const = default;

private:
    Planes m_planes;
    AlphaPlane m_alpha;
    QImage m_picture;
    QImage m_alphaPicture;
};

} // namespace graphics
