#include "controls/digital_display/digital_display.h"
#include "layoutfile/family_records.h"
#include "layoutfile/field_link.h"
#include "layoutfile/text_record.h"

#include <cstdlib>

namespace layoutfile {

namespace {

using controls::DigitalDisplay;
using controls::DigitalDisplayValues;

void link(auto &values, auto &record, auto field)
{
    linkText(values, record, field);
    field(values.curTimeFormat, record.timeFormat);
}

// The vertical unit serves in a horizontal direction: deliberate.
qint16 rightEdge(const DigitalDisplayValues &values, const platform::Screen &screen)
{
    return common::toInteger<qint16>(values.curCenterX +
                                     screen.toPixelsY(values.box.Width - controls::BothFrames));
}

// Negative for a comma; without decimal places there is no mark.
quint8 decimalByte(const DigitalDisplayValues &values)
{
    return static_cast<quint8>(values.curDecMark == 0 ? values.curDecPlaces : -values.curDecPlaces);
}

void takeDecimalByte(quint8 stored, DigitalDisplayValues &values)
{
    const auto places = static_cast<qint8>(stored);
    values.curDecMark = places < 0;
    values.curDecPlaces = static_cast<quint8>(std::abs(places));
}

void gather(const controls::OverlayControl &control, Gathering &save)
{
    const DigitalDisplayValues &values = static_cast<const DigitalDisplay &>(control).get();
    DigitalDisplayRecord record;
    link(values, record, ToRecord());
    record.x =
        values.isLeftAligned() ? values.curCenterX : static_cast<qint16>(-rightEdge(values, save.screen));
    record.y = values.curCenterY;
    record.decimalPlaces = decimalByte(values);
    putFont(values, DigitalDisplayValues::UsualSize, save.fonts, record);
    save.groups.add(record);
    save.used.mark(values.curVarID);
}

void build(const LayoutRecord &stored, controls::OverlayControl &control, const Loading &)
{
    const auto &record = std::get<DigitalDisplayRecord>(stored.body);
    DigitalDisplayValues values;
    link(values, record, FromRecord());
    takePlace(values, record.x, record.y);
    takeDecimalByte(record.decimalPlaces, values);
    takeFont(values, record);
    static_cast<DigitalDisplay &>(control).set(values);
}

} // namespace

FamilyRecord digitalDisplayRecord()
{
    return {.family = controls::ControlType::DigitalDisplay,
            .type = RecordType::DigitalDisplay,
            .gather = &gather,
            .build = &build};
}

} // namespace layoutfile
