#pragma once

#include "variables/catalogue.h"

#include <QByteArray>

namespace variables {

// The binary variable definition file ("QLM6ConfigToolVars.cfg", "*.var").

enum class DefinitionStatus {
    Loaded,
    Corrupted // wrong trailer, or bounds outside the catalogue: told with the message below
};

inline const QString CorruptedDefinitions =
    QStringLiteral("The variable file appears to be corrupted, cannot continue operation");

// Replaces the live table and the units and normalises them; anything but a whole, well-formed file changes
// nothing. Numbers that are not finite read as 0. Throws RunTimeError when the bytes end early or are
// ill-formed. Any bytes may be passed.
DefinitionStatus loadDefinitions(const QByteArray &bytes, Catalogue &catalogue);

// The live table and the units as a file.
QByteArray saveDefinitions(const Catalogue &catalogue);

} // namespace variables
