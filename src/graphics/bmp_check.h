#pragma once

#include "graphics/picture_loader.h"

#include <QByteArrayView>

namespace graphics {

// Whether these bytes begin like a .bmp file.
bool looksLikeBmp(QByteArrayView bytes);

// Whether a .bmp file is whole and no larger than `maxSide` on each side, told from its headers and, where
// it is run-length coded, from its codes. Nothing is decoded and nothing allocated.
PictureFault checkBmp(QByteArrayView bytes, int maxSide);

} // namespace graphics
