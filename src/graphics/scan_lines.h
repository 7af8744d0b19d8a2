#pragma once

#include <QImage>

namespace graphics {

// The picture with scan lines of QRgb whose colours stand as they are; their alpha byte means nothing. Costs
// nothing where the picture is kept that way already.
inline QImage withPixels(const QImage &picture)
{
    if (picture.format() == QImage::Format_RGB32 || picture.format() == QImage::Format_ARGB32)
        return picture;
    return picture.convertToFormat(picture.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
}

inline const QRgb *pixelsOf(const QImage &picture, int y)
{
    return reinterpret_cast<const QRgb *>(picture.constScanLine(y));
}

inline QRgb *pixelsOf(QImage &picture, int y) { return reinterpret_cast<QRgb *>(picture.scanLine(y)); }

} // namespace graphics
