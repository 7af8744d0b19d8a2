#pragma once

#include "common/canvas_size.h"
#include "graphics/plane_picture.h"
#include "recorder/message_table.h"

#include <QSize>
#include <QString>

#include <vector>

namespace recorder {

enum class VideoStandard : quint8 { Ntsc = 0, Pal = 1 };

using common::CanvasWidth;
constexpr int canvasHeight(VideoStandard standard)
{
    return standard == VideoStandard::Pal ? common::PalHeight : common::NtscHeight;
}
constexpr QSize canvasSize(VideoStandard standard) { return {CanvasWidth, canvasHeight(standard)}; }

enum class EncodePattern : quint8 { I = 0, IP = 1, IPB = 2 };

// The last entries of the lists that settings are chosen from; the first one is 0.
inline constexpr quint8 LastChapterType = 9;
inline constexpr quint8 LastSign = 1;
inline constexpr quint8 LastCondition = 2;
inline constexpr quint8 LastGearMethod = 1;

inline constexpr std::size_t MostGears = 7;

// A chapter is marked while value1 sign1 variable sign2 value2 holds; a sign is 0 for "<", 1 for "<=".
struct ChapterCondition
{
    quint8 type = 0; // shown number less 1
    float value1 = 0;
    quint8 sign1 = 0;
    qint32 variable = 0;
    quint8 sign2 = 0;
    float value2 = 0;

    bool operator==(const ChapterCondition &) const = default;
};

// Automatic start or stop of recording.
struct RecordingTrigger
{
    qint32 variable = 0;
    quint8 condition = 0; // 0 not active, 1 "<", 2 ">"
    float value = 0;
    quint8 time = 0;

    bool isActive() const { return condition != 0; }
    bool operator==(const RecordingTrigger &) const = default;
};

struct GearLimits
{
    float lower = 0;
    float upper = 0;

    bool operator==(const GearLimits &) const = default;
};

// The recorder's one icon. Its size in the file is that of its planes.
struct SpecialIcon
{
    bool enabled = false;
    qint16 top = 0; // pixels
    qint16 left = 0;
    quint8 alpha = 255;
    graphics::PlanePicture picture;

    bool operator==(const SpecialIcon &) const = default;
};

// What a layout carries beside the overlay.
struct RecorderSettings
{
    VideoStandard VideoType = VideoStandard::Pal;
    quint8 CurrentBitRate = 6; // Mbps
    EncodePattern encodePattern = EncodePattern::IPB;
    std::vector<ChapterCondition> ChapterList;
    quint8 LapChapterActive = 0;
    quint8 LapChapterType = 0;
    RecordingTrigger autoStart;
    RecordingTrigger autoStop;
    std::vector<GearLimits> GearTable = std::vector<GearLimits>(6);
    quint8 GearMethod = 0; // 1 gearbox sensor, 0 speed and engine speed
    qint32 GearVariable = 0;
    float PulsesPerRevolution = 0;
    SpecialIcon icon;
    recorder::MessageTable MessageTable{};

    bool operator==(const RecorderSettings &) const = default;
};

// The state of a new layout: everything at its start value but the video standard; `startMessages` is the
// message table as it was read at start.
void resetForNewLayout(RecorderSettings &settings, const MessageTable &startMessages);

QString standardCaption(VideoStandard standard);

} // namespace recorder
