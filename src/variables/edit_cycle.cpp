#include "variables/edit_cycle.h"

#include "platform/file_replace.h"
#include "variables/definition_file.h"
#include "variables/xvr.h"

namespace variables {

void commitEdits(Catalogue &catalogue, const platform::Folders &folders, const platform::NumberLocale &locale)
{
    catalogue.live = catalogue.staging;
    SetupVariables(catalogue);
    catalogue.staging = catalogue.live;
    writeCatalogueFiles(catalogue, folders, locale);
}

void writeCatalogueFiles(const Catalogue &catalogue, const platform::Folders &folders,
                         const platform::NumberLocale &locale)
{
    platform::replaceFile(folders.inUserData("QLM6ConfigTool.XVR"),
                          writeXvr(catalogue.live, locale.decimalSeparator));
    platform::replaceFile(folders.variablesFile(), saveDefinitions(catalogue));
}

} // namespace variables
