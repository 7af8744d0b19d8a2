#pragma once

#include "controls/control_surface.h"
#include "graphics/font_store.h"
#include "platform/locale.h"
#include "platform/progress.h"
#include "platform/prompts.h"
#include "platform/screen.h"
#include "platform/stamp.h"
#include "recorder/recorder_settings.h"
#include "variables/catalogue.h"

namespace layoutfile {

struct SaveContext
{
    controls::ControlSurface &surface;
    const variables::Catalogue &catalogue;
    const recorder::RecorderSettings &settings;
    graphics::FontStore &fonts;
    platform::Prompts &prompts;
    platform::Progress &progress;
    const platform::Stamp &stamp;
    platform::Screen screen;
    platform::NumberLocale locale{}; // in which equations were typed
};

enum class SaveKind {
    Command,   // the user's Save: every check speaks
    Workspace, // at the closing of the window: silent, only the camera check speaks and refuses
    Backup     // nothing speaks, cameras are not checked
};

enum class SaveResult { Written, NothingToDo, Refused };

// Writes the design as a layout file. Nothing is written when `path` is empty, the design is empty or a check
// fails. Throws RunTimeError when the file cannot be written; the old file is then as it was.
SaveResult SaveVGL(const QString &path, SaveKind kind, const SaveContext &context);

} // namespace layoutfile
