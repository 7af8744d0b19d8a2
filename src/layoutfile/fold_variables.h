#pragma once

#include "layoutfile/record_codec.h"
#include "platform/locale.h"
#include "variables/catalogue.h"

namespace layoutfile {

// Brings the catalogue in line with a layout: smoothing and limits of every stored variable; where one has a
// program, the allowed unit whose conversion makes the same bytes, else the program as an equation; where a
// used one has none and no equation of its own, the allowed unit that shows the raw value. A program that
// lies outside the stored bytes or makes no equation leaves the variable's definition as it is. The
// variables are normalised, and both tables are the same afterwards.
void foldVariables(const std::vector<LayoutRecord> &records, variables::Catalogue &catalogue,
                   const platform::NumberLocale &locale);

} // namespace layoutfile
