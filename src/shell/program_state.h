#pragma once

#include "graphics/font_store.h"
#include "platform/folders.h"
#include "platform/locale.h"
#include "platform/screen.h"
#include "platform/stamp.h"
#include "recorder/recorder_settings.h"
#include "surface/clipboard.h"
#include "variables/catalogue.h"

namespace shell {

// All state of the running program that is not on the canvas. One instance, owned by the start.
struct ProgramState
{
    platform::Folders folders;
    graphics::FontStore fonts{folders};
    platform::NumberLocale locale;
    platform::Screen screen;
    platform::Stamp stamp;
    variables::Catalogue catalogue;
    surface::Clipboard clipboard;
    recorder::RecorderSettings settings;
    recorder::MessageTable startMessages{}; // as read at start
    bool sessionEnds = false;               // the windows close without anybody to answer a question
};

} // namespace shell
