#pragma once

#include "graphics/font_name.h"

#include <QByteArray>
#include <QStringList>

namespace graphics {

using platform::ShippedFace;
using platform::StoodInFor;

// Whether a face is drawn as it is: it is installed and has letters or digits with outlines, or it comes with
// the program. An alias ("Serif") counts as what the desktop means by it.
bool isInstalled(const QString &face);
// The same, or whether the shipped face is meant to stand in for it.
bool isDrawable(const QString &face);
// The faces to choose from: all that are drawable, without foundries, in the order of the alphabet. Asks the
// desktop.
QStringList drawableFaces();

// The font file of an installed face, in the style that comes nearest. Empty when the face is not installed,
// has no outlines, or there is no desktop to ask.
QByteArray installedFace(const QString &face, const FontStyle &style);

// The shipped face's file in this folder. Empty when there is none.
QByteArray shippedFace(const QString &folder, const FontStyle &style);

// Whether a face is the shipped one itself: then its own files are taken, whatever is installed.
bool isShippedFace(const QString &face);

} // namespace graphics
