#pragma once

#include "graphics/picture_loader.h"

#include <QByteArrayView>

#include <array>

namespace graphics {

// Whether these bytes begin like a .bmp file.
bool looksLikeBmp(QByteArrayView bytes);

// Whether a .bmp file is whole and no larger than `maxSide` on each side, told from its headers and, where
// it is run-length coded, from its codes. Nothing is decoded and nothing allocated.
PictureFault checkBmp(QByteArrayView bytes, int maxSide);

// The picture of a .bmp file of 24 bits a pixel that has passed the check, in a fraction of the time that the
// usual decoder takes; a null image for other depths. Keeps nothing of `bytes`.
QImage trueColourPicture(QByteArrayView bytes);

// How many bits of a pixel are red, green and blue in a .bmp file that has passed the check: 8, or fewer in
// pixels of 16 bits.
std::array<int, 3> channelBits(QByteArrayView bytes);

} // namespace graphics
