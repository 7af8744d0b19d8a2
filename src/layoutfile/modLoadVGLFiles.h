#pragma once

#include "controls/control_surface.h"
#include "platform/folders.h"
#include "platform/locale.h"
#include "platform/progress.h"
#include "platform/prompts.h"
#include "platform/screen.h"
#include "platform/stamp.h"
#include "recorder/recorder_settings.h"
#include "variables/catalogue.h"

namespace layoutfile {

struct LoadContext
{
    controls::ControlSurface &surface;
    variables::Catalogue &catalogue;
    recorder::RecorderSettings &settings;
    platform::Prompts &prompts;
    platform::Progress &progress;
    const platform::Folders &folders;
    const platform::Stamp &stamp; // names pictures after the time
    platform::Screen screen;
    platform::NumberLocale locale{}; // in which equations will be read
};

// Loads a layout into the current design without clearing it: controls are added, recorder settings replaced.
// A file that cannot be read or fails its CRC shows "Invalid File Format" and changes nothing (false). A copy
// of a picture, a variable or message file that cannot be written is reported; the design stands.
bool LoadVGL(const QString &path, const LoadContext &context);

// Writes the thumbnail of a layout to "Thumb.jpg" in the temporary folder and answers that path; empty when
// the file is invalid or has none.
QString ExtractThumbnail(const QString &path, const platform::Folders &folders);

} // namespace layoutfile
