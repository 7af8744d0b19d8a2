#include "controls/video_source/video_source.h"
#include "layoutfile/family_records.h"
#include "layoutfile/field_link.h"

namespace layoutfile {

namespace {

using controls::VideoSource;
using controls::VideoSourceValues;

void link(auto &values, auto &record, auto field)
{
    linkLimits(values, record, field);
    field(values.curDivisor, record.divisor);
    field(values.curTopCoord, record.top);
    field(values.curLeftCoord, record.left);
    field(values.curTopBorderWidth, record.topBorderWidth);
    field(values.curBottomBorderWidth, record.bottomBorderWidth);
    field(values.curLeftBorderWidth, record.leftBorderWidth);
    field(values.curRightBorderWidth, record.rightBorderWidth);
    field(values.curBordercolor, record.borderColour);
    field(values.curBorderVisible, record.borderVisible);
    field(values.curBorderWidth, record.borderWidth);
    field(values.curCameraNo, record.cameraNo);
    field(values.curMirror, record.mirror);
    field(values.curBrightness, record.brightness);
    field(values.curContrast, record.contrast);
    field(values.curHue, record.hue);
    field(values.curSaturation, record.saturation);
}

// Its variable is not marked as used: deliberate.
void gather(const controls::OverlayControl &control, Gathering &save)
{
    VideoSourceRecord record;
    link(static_cast<const VideoSource &>(control).get(), record, ToRecord());
    save.groups.add(record);
}

void build(const LayoutRecord &stored, controls::OverlayControl &control, const Loading &load)
{
    VideoSourceValues values;
    link(values, std::get<VideoSourceRecord>(stored.body), FromRecord());
    values = controls::placed(values, control.host().VideoType(), load.screen);
    place(static_cast<VideoSource &>(control), values);
}

} // namespace

FamilyRecord videoSourceRecord()
{
    return {.family = controls::ControlType::VideoSource,
            .type = RecordType::VideoSource,
            .gather = &gather,
            .build = &build};
}

} // namespace layoutfile
