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
    platform::replaceFile(folders.inUserData("QLM6ConfigTool.XVR"),
                          writeXvr(catalogue.live, locale.decimalSeparator));
}

void writeDefinitionFile(const Catalogue &catalogue, const platform::Folders &folders)
{
    platform::replaceFile(folders.variablesFile(), saveDefinitions(catalogue));
}

} // namespace

void commitEdits(Catalogue &catalogue, const platform::Folders &folders, const platform::NumberLocale &locale,
                 platform::Prompts &prompts)
{
    catalogue.live = catalogue.staging;
    SetupVariables(catalogue);
    catalogue.hasUnwrittenEdits = true;
    writePendingEdits(catalogue, folders, locale, prompts);
}

void writePendingEdits(Catalogue &catalogue, const platform::Folders &folders,
                       const platform::NumberLocale &locale, platform::Prompts &prompts)
{
    if (!catalogue.hasUnwrittenEdits || catalogue.definitionsLost)
        return;
    const auto writeDefinitions = [&] { writeDefinitionFile(catalogue, folders); };
    // Both files mostly fail for the same reason, which is told once.
    if (platform::reportFailures(prompts, [&] { writeXvrFile(catalogue, folders, locale); }))
        catalogue.hasUnwrittenEdits = !platform::reportFailures(prompts, writeDefinitions);
    else
        platform::skipFailures(writeDefinitions);
}

void writeCatalogueFiles(Catalogue &catalogue, const platform::Folders &folders,
                         const platform::NumberLocale &locale)
{
    catalogue.hasUnwrittenEdits = true;
    writeDefinitionFile(catalogue, folders); // what the next start reads comes first
    writeXvrFile(catalogue, folders, locale);
    catalogue.hasUnwrittenEdits = false;
}

} // namespace variables
