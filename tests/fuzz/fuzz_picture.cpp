#include "fuzz/targets.h"
#include "graphics/composer.h"
#include "graphics/picture_loader.h"
#include "graphics/planes.h"

#include <QSize>

namespace fuzz {

namespace {

constexpr int MaxSide = 48;

// Either a picture within the limit that goes through planes and composer, or nothing and a reason.
bool holds(QByteArrayView bytes)
{
    const graphics::LoadedPicture loaded = graphics::readPicture(bytes, MaxSide);
    if (!loaded)
        return loaded.picture.isNull();
    const QSize size = loaded.picture.size();
    if (size.isEmpty() || size.width() > MaxSide || size.height() > MaxSide)
        return false;
    const QSize padded = graphics::paddedSize(size);
    const graphics::Planes planes = graphics::toPlanes(loaded.picture, padded);
    QImage surface = graphics::toPicture(planes);
    graphics::compose(surface, {1, -1}, loaded.picture, graphics::toAlphaPlane(loaded.picture, padded), 200);
    return planes.isComplete() && surface.size() == padded &&
           graphics::sampled(loaded.picture, padded).size() == padded;
}

} // namespace

bool picture(QByteArrayView bytes)
{
    QByteArray asBmp = bytes.toByteArray();
    asBmp.replace(0, 2, "BM");
    return holds(bytes) && holds(asBmp);
}

} // namespace fuzz
