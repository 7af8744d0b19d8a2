#pragma once

#include <QByteArray>
#include <QImage>

namespace graphics {

// A picture as JPEG, or what kept it from being encoded.
struct Thumbnail
{
    QByteArray jpeg;
    QString fault;
};

// The picture of a layout at one sixth of video size.
Thumbnail thumbnailOf(const QImage &surface);

} // namespace graphics
