#include "controls/track_map/track_map.h"
#include "layoutfile/family_records.h"
#include "layoutfile/field_link.h"

namespace layoutfile {

namespace {

using common::toInteger;
using controls::TrackMap;
using controls::TrackMapValues;

// What the recorder draws a track from: place and motion.
constexpr qint32 TrackVariables[] = {30, 31, 406};

void link(auto &values, auto &record, auto field)
{
    field(values.curLineWidth, record.lineWidth);
    field(values.curLinecolor, record.lineColour);
    field(values.curMarkerVisible, record.markerVisible);
    field(values.curMarkerWidth, record.markerWidth);
    field(values.curMarkercolor, record.markerColour);
    field(values.curBorderWidth, record.borderWidth);
    field(values.curBordercolor, record.borderColour);
    field(values.curBorderVisible, record.borderVisible);
    field(values.curAlfa, record.alpha);
    field(values.curFadingRate, record.fadingRate);
    field(values.curIniWidth, record.initialWidth);
    field(values.curIniHeight, record.initialHeight);
    field(values.curAutoRescale, record.autoRescale);
}

void linkUnderlay(auto &values, auto &record, auto field)
{
    field(values.curMapType, record.mapType);
    field(values.curMapDetailLevel, record.detailLevel);
    field(values.curMapAlpha, record.alpha);
}

// The recorder's box is the outer one.
void putBox(const controls::Box &box, const platform::Screen &screen, TrackMapRecord &record)
{
    record.left = toInteger<qint16>(screen.toPixelsX(box.Left));
    record.top = toInteger<qint16>(screen.toPixelsY(box.Top));
    record.width = toInteger<qint16>(screen.toPixelsX(box.Width));
    record.height = toInteger<qint16>(screen.toPixelsY(box.Height));
}

void gather(const controls::OverlayControl &control, Gathering &save)
{
    const TrackMapValues &values = static_cast<const TrackMap &>(control).get();
    TrackMapRecord record;
    link(values, record, ToRecord());
    putBox(values.box, save.screen, record);
    const qint16 object = save.groups.add(record);
    if (values.curMapEnable != 0) {
        TrackMapUnderlayRecord underlay;
        linkUnderlay(values, underlay, ToRecord());
        save.groups.add(underlay, object);
    }
    for (const qint32 variable : TrackVariables)
        save.used.mark(variable);
}

void build(const LayoutRecord &stored, controls::OverlayControl &control, const Loading &load)
{
    const auto &record = std::get<TrackMapRecord>(stored.body);
    const platform::Screen &screen = load.screen;
    TrackMapValues values;
    link(values, record, FromRecord());
    if (const auto *underlay = load.find<TrackMapUnderlayRecord>(stored.object)) {
        values.curMapEnable = 1;
        linkUnderlay(values, *underlay, FromRecord());
    }
    auto &map = static_cast<TrackMap &>(control);
    map.set(values);
    map.setBox({screen.toTwipsX(record.left), screen.toTwipsY(record.top), screen.toTwipsX(record.width),
                screen.toTwipsY(record.height)}); // the size properties follow from it
    map.updatePosition();
}

} // namespace

FamilyRecord trackMapRecord()
{
    return {.family = controls::ControlType::TrackMap,
            .type = RecordType::TrackMap,
            .gather = &gather,
            .build = &build,
            .secondRefused = "System does not support more than one Track Map"};
}

} // namespace layoutfile
