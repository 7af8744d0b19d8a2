#pragma once

#include <QByteArray>
#include <QImage>

namespace graphics {

// A picture in the recorder's form. Rows run top first and are not aligned; sizes are in pixels.
struct Planes
{
    int width = 0;
    int height = 0;
    QByteArray y; // one byte a pixel
    QByteArray u; // one byte a block of 2 by 2: of chromaSize()
    QByteArray v; // the same; what a file holds of either beyond that is kept

    // Planes of this size with undefined contents; empty ones where a side is below 1.
    static Planes ofSize(QSize size);
    QSize size() const { return {width, height}; }
    // Whether there is something to show and the lengths fit the size.
    bool isComplete() const;

    bool operator==(const Planes &) const = default;
};

// How opaque each pixel of a picture is: 0 is transparent.
struct AlphaPlane
{
    int width = 0;
    int height = 0;
    QByteArray values; // one byte a pixel

    static AlphaPlane ofSize(QSize size);
    QSize size() const { return {width, height}; }
    bool isComplete() const;

    bool operator==(const AlphaPlane &) const = default;
};

// What a pixel outside a picture reads as, 0x00BBGGRR: all bits set, as on a drawing surface.
constexpr quint32 OutsideColour = 0xFFFFFF;

// The size of the U and V planes of a picture of this size.
constexpr QSize chromaSize(QSize picture) { return {picture.width() / 2, picture.height() / 2}; }

// The size up to a multiple of 8 and a multiple of 2, which is what the recorder's blocks ask for.
QSize alignedSize(QSize size);

// The size of the planes of a newly chosen picture: the width goes up to a multiple of 8 and the height to a
// multiple of 2, and by a whole 8 or 2 where it is one already. That extra is deliberate: readers of layouts
// count on it. Planes that came from a file, and those of custom dials, are not padded.
QSize paddedSize(QSize picture);

// The picture as planes of the given size. U and V are those of the pixels at even x and y, not a mean of
// their blocks. Outside the picture stands OutsideColour; what the size does not cover is cut off.
Planes toPlanes(const QImage &picture, QSize size);
// The same into planes that exist, of their own size.
void fillPlanes(Planes &planes, const QImage &picture);

// The red of each pixel, 0 outside the picture.
AlphaPlane toAlphaPlane(const QImage &alphaPicture, QSize size);

// The picture of the planes; a null image when they are not complete. Where an odd side leaves the last
// column or row without U and V, those before it serve.
QImage toPicture(const Planes &planes);
// The same into a picture that exists, 32 bits deep and of the planes' size.
void fillPicture(QImage &picture, const Planes &planes);

// The plane as a grey picture; a null image when it is not complete.
QImage toPicture(const AlphaPlane &alpha);

} // namespace graphics
