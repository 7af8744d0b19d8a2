#pragma once

#include <QByteArrayView>
#include <QImage>
#include <QString>

namespace graphics {

enum class PictureFault {
    None,
    Unreadable,  // no such file, or no right to read it
    Empty,       // no bytes
    NotAPicture, // not one of the known formats, or headers that make no sense
    TooLarge,    // a side over the limit, or more bytes than a picture within it can have
    Cut,         // the end is missing, or the data do not decode
};

// A picture with 32-bit pixels (QImage::Format_RGB32), or a null image and the reason.
struct LoadedPicture
{
    QImage picture;
    PictureFault fault = PictureFault::None;

    explicit operator bool() const { return fault == PictureFault::None; }
};

// The longest side of a picture that is taken, in pixels: 64 MiB in memory, and under four times that while
// it is decoded. A size over the limit is refused from the header, before anything is allocated.
constexpr int MaxPictureSide = 4096;

// Pictures are .bmp, .png and .jpg, told by their first bytes and not by their names. An alpha channel is
// dropped: colours count as they stand in the file.
LoadedPicture readPicture(QByteArrayView bytes, int maxSide = MaxPictureSide);
LoadedPicture loadPicture(const QString &path);

// The picture as a .bmp file.
QByteArray bmpOf(const QImage &picture);

} // namespace graphics
