#pragma once

#include "controls/overlay_control.h"
#include "graphics/font_store.h"
#include "layoutfile/layout_file.h"
#include "layoutfile/used_variables.h"

#include <span>

namespace layoutfile {

// What the walk over the controls fills during a save.
struct Gathering
{
    RecordGroups groups;
    UsedVariables used;
    platform::Screen screen;
    graphics::FontStore &fonts; // made without progress: a second window would take the place of the save's
};

// How the controls of one family become records and come back. To add a family: one file with these two
// functions, one row in family_records.cpp.
struct FamilyRecord
{
    controls::ControlType family;
    RecordType type;
    void (*gather)(controls::OverlayControl &, Gathering &);
    // Sets place, size and properties of a fresh control.
    void (*build)(const RecordBody &, controls::OverlayControl &);
};

// In the order in which a load builds them.
std::span<const FamilyRecord> familyRecords();

FamilyRecord barGraphRecord();
FamilyRecord gaugeRecord();

} // namespace layoutfile
