#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>

#include <optional>

namespace make_data {

// The drawing of an SVG file as a file of `format`: "png" keeps transparency, "bmp" (24 bits) and "jpg" stand
// on white, "ico" holds the usual icon sizes up to the one given. Nothing when the drawing cannot be read or
// the format is another one.
std::optional<QByteArray> renderPicture(const QString &svgPath, QSize size, const QString &format);

// A picture for a bitmap and the one that says how opaque it is, as .bmp files.
struct PicturePair
{
    QByteArray colours; // 24 bits
    QByteArray alpha;   // 8 bits
};

// The size in pixels that the drawing gives itself; an empty one when it cannot be read.
QSize drawnSize(const QString &svgPath);

// The drawing and its own transparency; nothing when it cannot be read.
std::optional<PicturePair> renderPair(const QString &svgPath, QSize size);

} // namespace make_data
