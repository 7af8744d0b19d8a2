#pragma once

#include "platform/folders.h"
#include "platform/locale.h"
#include "platform/prompts.h"
#include "variables/catalogue.h"

namespace variables {

// What follows every edit of the staging table: it becomes the live table, is normalised and copied back, and
// the two files in the user data folder are written as below.
void commitEdits(Catalogue &catalogue, const platform::Folders &folders, const platform::NumberLocale &locale,
                 platform::Prompts &prompts);

// Writes the XVR file and the definition file, each for itself, when edits are not in them yet. A failure is
// told of; the edits stand and stay unwritten. Also called at exit.
void writePendingEdits(Catalogue &catalogue, const platform::Folders &folders,
                       const platform::NumberLocale &locale, platform::Prompts &prompts);

// Writes the definition file of the live table, then its XVR file. Throws RunTimeError when one cannot be
// written.
void writeCatalogueFiles(Catalogue &catalogue, const platform::Folders &folders,
                         const platform::NumberLocale &locale);

} // namespace variables
