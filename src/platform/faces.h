#pragma once

#include <QStringList>

namespace platform {

// The face of the program's windows and of everything whose own face cannot be drawn.
inline const QString DefaultFace = QStringLiteral("QL Sans Serif");
// The face that comes with the program.
inline const QString ShippedFace = QStringLiteral("Liberation Sans");
// Faces that the shipped one stands in for where they are not installed, so that a design looks the same
// there.
inline const QStringList StoodInFor = {DefaultFace, QStringLiteral("MS Sans Serif"), QStringLiteral("Arial")};

} // namespace platform
