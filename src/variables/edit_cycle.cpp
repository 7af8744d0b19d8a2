#include "variables/edit_cycle.h"

#include "platform/file_replace.h"
#include "platform/guards.h"
#include "variables/definition_file.h"
#include "variables/xvr.h"

namespace variables {

namespace {

void writeXvrFile(const Catalogue &catalogue, const platform::Folders &folders,
                  const platform::NumberLocale &locale)
{
    if (!catalogue.definitionsLost)
        platform::replaceFile(folders.inUserData("QLM6ConfigTool.XVR"),
                              writeXvr(catalogue.live, locale.decimalSeparator));
}

void writeDefinitionFile(const Catalogue &catalogue, const platform::Folders &folders)
{
    if (!catalogue.definitionsLost)
        platform::replaceFile(folders.variablesFile(), saveDefinitions(catalogue));
}

} // namespace

void commitEdits(Catalogue &catalogue, const platform::Folders &folders, const platform::NumberLocale &locale)
{
    catalogue.live = catalogue.staging;
    SetupVariables(catalogue);
    catalogue.staging = catalogue.live;
    platform::skipFailures([&] { writeXvrFile(catalogue, folders, locale); });
    platform::skipFailures([&] { writeDefinitionFile(catalogue, folders); });
}

void writeCatalogueFiles(const Catalogue &catalogue, const platform::Folders &folders,
                         const platform::NumberLocale &locale)
{
    writeDefinitionFile(catalogue, folders); // what the next start reads comes first
    writeXvrFile(catalogue, folders, locale);
}

} // namespace variables
