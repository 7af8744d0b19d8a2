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

} // namespace make_data
