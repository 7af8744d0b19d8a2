#pragma once

#include "layoutfile/record_codec.h"
#include "recorder/recorder_settings.h"

namespace layoutfile {

// Takes over the recorder settings of a layout: absent records leave theirs as they are, only the chapter
// list is emptied first. Values that no list holds become the entry that stands for them. The video standard
// is not touched but answered: the one in the file, or the present one.
recorder::VideoStandard settingsFromRecords(const std::vector<LayoutRecord> &records,
                                            recorder::RecorderSettings &settings);

} // namespace layoutfile
