#pragma once

#include "platform/screen.h"
#include "platform/settings_file.h"

#include <QRect>

#include <array>
#include <limits>

namespace platform {

// One whole-number key of the settings file: its default and what is done with a value out of bounds.
struct NumberKey
{
    const char *section;
    const char *key;
    int fallback;
    int low = std::numeric_limits<int>::min(); // a value below `low` becomes `belowLow`
    int belowLow = low;
    int high = std::numeric_limits<int>::max(); // a value above `high` becomes `high`

    int read(const SettingsFile &file) const;
    int readUnclamped(const SettingsFile &file) const;
    void write(SettingsFile &file, int value) const;
};

// One text key, read into a buffer of a fixed size.
struct TextKey
{
    const char *section;
    const char *key;
    const char *fallback;
    int bufferSize = 100; // characters

    QString read(const SettingsFile &file) const;
    void write(SettingsFile &file, const QString &value) const;
};

// A path of any script; the file itself holds the 8-bit code page only.
struct PathKey
{
    const char *section;
    const char *key;

    QString read(const SettingsFile &file) const; // empty for none
    void write(SettingsFile &file, const QString &path) const;
};

// Left, top, width and height of a panel in twips.
struct PanelKeys
{
    NumberKey left, top, width, height;
    // Whether any of the four stands in the file.
    bool stored(const SettingsFile &file) const;
    // In pixels.
    QRect read(const SettingsFile &file, const Screen &screen) const;
    QRect readUnclamped(const SettingsFile &file, const Screen &screen) const;
    void write(SettingsFile &file, const QRect &pixels, const Screen &screen) const;
};

namespace keys {

inline constexpr const char *Tool = "QLM6CONFIGURATIONTOOL";
inline constexpr NumberKey VideoType{Tool, "VIDEOTYPE", 1};
inline constexpr NumberKey GridSize{Tool, "GRIDSIZE", 80, -32768, -32768, 32767};
inline constexpr NumberKey ShowGrid{Tool, "SHOWGRID", 1};
inline constexpr NumberKey SnapGrid{Tool, "SNAPGRID", 1};
inline constexpr NumberKey SafeAreas{Tool, "SAFEAREAS", 0};
inline constexpr TextKey PalPicture{Tool, "PAL_BACKIMG", "PALVIDEOBackImg.bmp"};
inline constexpr TextKey NtscPicture{Tool, "NTSC_BACKIMG", "NTSCVIDEOBackImg.bmp"};
inline constexpr PathKey LayoutFolder{Tool, "LAYOUTFOLDER"};
// The newest first.
inline constexpr std::array<PathKey, 8> RecentLayouts{{{"RECENTLAYOUTS", "1"},
                                                       {"RECENTLAYOUTS", "2"},
                                                       {"RECENTLAYOUTS", "3"},
                                                       {"RECENTLAYOUTS", "4"},
                                                       {"RECENTLAYOUTS", "5"},
                                                       {"RECENTLAYOUTS", "6"},
                                                       {"RECENTLAYOUTS", "7"},
                                                       {"RECENTLAYOUTS", "8"}}};

// A top below 894 becomes 854: the smaller value is deliberate.
inline constexpr PanelKeys Library{{"CONTROL", "LEFT", 0},
                                   {"CONTROL", "TOP", 5550, 894, 854, 12894},
                                   {"CONTROL", "WIDTH", 3165},
                                   {"CONTROL", "HEIGHT", 2498, 650, 650, 12316}};
inline constexpr PanelKeys LibrarySplitter{{"CONTROL_SPL", "LEFT", 2500, -32768, -32768, 32767},
                                           {"CONTROL_SPL", "TOP", 1110, -32768, -32768, 32767},
                                           {"CONTROL_SPL", "WIDTH", 60, -32768, -32768, 32767},
                                           {"CONTROL_SPL", "HEIGHT", 60, -32768, -32768, 32767}};
inline constexpr PanelKeys Functions{{"FUNTION", "LEFT", 12259},
                                     {"FUNTION", "TOP", 180},
                                     {"FUNTION", "WIDTH", 3041, 650, 650},
                                     {"FUNTION", "HEIGHT", 6978}};
inline constexpr PanelKeys Design{{"DESIGN", "LEFT", 0},
                                  {"DESIGN", "TOP", 180},
                                  {"DESIGN", "WIDTH", 12255},
                                  {"DESIGN", "HEIGHT", 6978, 434, 434, 12474}};
// By panel number; 0 means that the panel is closed at start.
inline constexpr std::array<NumberKey, 3> Visible{
    {{"VISIBLE", "0", 1}, {"VISIBLE", "1", 1}, {"VISIBLE", "2", 1}}};

} // namespace keys

} // namespace platform
