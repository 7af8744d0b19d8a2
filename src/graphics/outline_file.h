#pragma once

#include <QByteArray>
#include <QRawFont>

namespace graphics {

// A font file (Type 1) with the outlines of all characters of both lists that the face has: for faces that
// have no tables to be taken over. Empty when none of them has an outline.
QByteArray outlineFile(QRawFont face);

} // namespace graphics
