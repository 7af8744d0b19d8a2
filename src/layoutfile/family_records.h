#pragma once

#include "controls/overlay_control.h"
#include "layoutfile/font_list.h"
#include "layoutfile/images.h"
#include "layoutfile/loading.h"
#include "layoutfile/used_variables.h"

#include <span>

namespace layoutfile {

// What the walk over the controls fills during a save. A gather that throws has added nothing: what a record
// is made of is worked out before the first of its parts is added.
struct Gathering
{
    RecordGroups groups; // adding a record answers its object number
    UsedVariables used;
    FontList fonts;
    ImageList images;
    platform::Screen screen;
};

// How the controls of one family become records and come back.
struct FamilyRecord
{
    controls::ControlType family;
    RecordType type;
    void (*gather)(const controls::OverlayControl &, Gathering &);
    // Sets place, size and properties of a fresh control.
    void (*build)(const LayoutRecord &, controls::OverlayControl &, const Loading &);
    // Names the records that were made from this one for the recorder: they come back with its control.
    // Null for none.
    void (*claimParts)(const RecordBody &, ObjectNames &) = nullptr;
    int progressSteps = 1;               // that one control counts on the progress bar
    const char *secondRefused = nullptr; // the Save command's complaint where a file holds only one
};

// In the order in which a load builds them.
std::span<const FamilyRecord> familyRecords();
const FamilyRecord &recordOf(controls::ControlType family);
int progressStepsOf(RecordType type); // 0 for what is no control's own record

FamilyRecord textTagRecord();
FamilyRecord digitalDisplayRecord();
FamilyRecord barGraphRecord();
FamilyRecord bitmapRecord();
FamilyRecord gaugeRecord();
FamilyRecord customDialRecord();
FamilyRecord videoSourceRecord();
FamilyRecord trackMapRecord();

} // namespace layoutfile
