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

#include <QByteArray>
#include <QStringList>

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
    Command,   // the user's Save: every check speaks, a control that cannot be stored ends it
    Workspace, // at the closing of the window: silent, only the camera check speaks and refuses
    Backup,    // nothing speaks, cameras are not checked
    Recovery   // as a backup, and quick: no thumbnail
};

// Either the whole file, or why there is none: a text for the user. Both are empty for an empty design that
// nobody asked to save.
struct LayoutBytes
{
    QByteArray file;
    QString refusal;
    QStringList replacedFonts{}; // that could not be made: the default face stands under their names
};

// Puts the layout file of the design together in memory and writes nothing. Throws RunTimeError when a Save
// command meets a control that cannot be stored.
LayoutBytes layoutBytes(SaveKind kind, const SaveContext &context);

} // namespace layoutfile
