#pragma once

#include "platform/folders.h"
#include "platform/locale.h"
#include "variables/catalogue.h"

namespace variables {

// What follows every edit of the staging table: it becomes the live table, is normalised and copied back, and
// the two files in the user data folder are written. A file that cannot be written is passed over; the edit
// stands.
void commitEdits(Catalogue &catalogue, const platform::Folders &folders,
                 const platform::NumberLocale &locale);

// Writes the definition file of the live table, then its XVR file. Throws RunTimeError when one cannot be
// written.
void writeCatalogueFiles(const Catalogue &catalogue, const platform::Folders &folders,
                         const platform::NumberLocale &locale);

} // namespace variables
