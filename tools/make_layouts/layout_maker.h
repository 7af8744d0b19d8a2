#pragma once

#include "make_layouts/workbench.h"
#include "platform/stamp.h"

namespace make_layouts {

// The layout file of a text for this standard, made with what ships in the program folder: catalogue,
// pictures, faces. The same text gives the same bytes, and a load and a save in the tool give them again but
// for the stamp. Nothing that is worth shipping comes of a text with problems.
//
// Rows under "[Recorder]" are settings (recorder_row.h). The heading of controls is the caption of their
// family, with settings that all of them share behind it: "[Digital Display | newBold = 1]". A row is one
// control; families stand in the order in which a load builds them.
QByteArray makeLayout(const TextTable &text, recorder::VideoStandard standard, const QString &programFolder,
                      const platform::Stamp &stamp, Problems &problems);

} // namespace make_layouts
