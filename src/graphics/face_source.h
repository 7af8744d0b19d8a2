#pragma once

#include "graphics/font_name.h"

#include <QByteArray>
#include <QString>

namespace graphics {

// The font file of an installed face, in the style that comes nearest. Empty when the face is not installed,
// has no outlines, or there is no desktop to ask.
QByteArray installedFace(const QString &face, const FontStyle &style);

// Whether a face is drawn as it is: it is installed and has outlines, or it comes with the program.
bool isInstalled(const QString &face);

// The face that comes with the program and stands in for those that are not installed.
inline const QString ShippedFace = QStringLiteral("Liberation Sans");

// Its file in this folder. Empty when there is none.
QByteArray shippedFace(const QString &folder, const FontStyle &style);

// Whether a face is the shipped one itself: then its own files are taken, whatever is installed.
bool isShippedFace(const QString &face);

} // namespace graphics
