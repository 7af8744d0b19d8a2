#pragma once

#include <QByteArray>
#include <QImage>

namespace graphics {

// The picture of a layout at one sixth of video size, as JPEG. Throws RunTimeError when it cannot be encoded.
QByteArray thumbnailJpeg(const QImage &surface);

} // namespace graphics
