#pragma once

#include "platform/folders.h"
#include "platform/locale.h"
#include "variables/catalogue.h"

namespace variables {

// What follows every edit of the staging table: it becomes the live table, is normalised and copied back, and
// the two files in the user data folder are written. Throws RunTimeError when one cannot be written; the
// tables stand then.
void commitEdits(Catalogue &catalogue, const platform::Folders &folders,
                 const platform::NumberLocale &locale);

// Writes the definition file and the XVR file of the live table.
void writeCatalogueFiles(const Catalogue &catalogue, const platform::Folders &folders,
                         const platform::NumberLocale &locale);

} // namespace variables
