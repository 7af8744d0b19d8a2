#pragma once

#include "layoutfile/layout_file.h"
#include "platform/progress.h"
#include "recorder/recorder_settings.h"

namespace layoutfile {

// Adds the records of the recorder settings. Conditions and an icon that are not in force have none. Moves
// the bar from 60 to 90 percent.
void gatherSettings(RecordGroups &groups, const recorder::RecorderSettings &settings,
                    platform::ProgressScope &progress);

// Takes over the recorder settings of a layout: absent records leave theirs as they are, only the chapter
// list is emptied first. Values that no list holds become the entry that stands for them. The video standard
// is not touched but answered: the one in the file, or the present one.
recorder::VideoStandard settingsFromRecords(const std::vector<LayoutRecord> &records,
                                            recorder::RecorderSettings &settings);

} // namespace layoutfile
