#include "graphics/plane_picture.h"

namespace graphics {

namespace {

AlphaPlane opaque(QSize size)
{
    AlphaPlane alpha = AlphaPlane::ofSize(size);
    alpha.values.fill('\xFF');
    return alpha;
}

} // namespace

PlanePicture PlanePicture::chosen(const QImage &picture, const QImage &alphaPicture)
{
    return ofSize(picture, alphaPicture, paddedSize(picture.size()));
}

PlanePicture PlanePicture::ofSize(const QImage &picture, const QImage &alphaPicture, QSize size)
{
    PlanePicture made;
    if (picture.isNull())
        return made;
    made.m_picture = picture;
    made.m_planes = toPlanes(picture, size);
    return made.withAlpha(alphaPicture);
}

PlanePicture PlanePicture::fromFile(const Planes &planes, const AlphaPlane &alpha)
{
    PlanePicture made;
    made.m_picture = toPicture(planes);
    if (made.m_picture.isNull())
        return {};
    made.m_planes = planes;
    made.m_alpha = alpha.isComplete() && alpha.size() == planes.size() ? alpha : opaque(planes.size());
    made.m_alphaPicture = toPicture(made.m_alpha);
    return made;
}

PlanePicture PlanePicture::withAlpha(const QImage &alphaPicture) const
{
    PlanePicture made = *this;
    made.m_alphaPicture = alphaPicture;
    made.m_alpha = toAlphaPlane(alphaPicture, m_planes.size());
    return made;
}

} // namespace graphics
