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

// A face without the foundry that the desktop adds in brackets to tell two of one name apart.
inline QString withoutFoundry(const QString &face)
{
    const qsizetype bracket = face.endsWith(QLatin1Char(']')) ? face.lastIndexOf(QLatin1Char('[')) : -1;
    return bracket < 0 ? face : face.first(bracket).trimmed();
}

} // namespace platform
