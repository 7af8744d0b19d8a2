#include "controls/custom_dial/custom_dial.h"
#include "layoutfile/family_records.h"
#include "layoutfile/field_link.h"
#include "layoutfile/gauge_record.h"

namespace layoutfile {

namespace {

using controls::CustomDial;
using controls::CustomDialValues;

void link(auto &values, auto &record, auto field)
{
    linkScale(values, record, field);
    field(values.curPointerLength, record.pointerLength);
    field(values.curPointerWidth, record.pointerWidth);
    field(values.curPointerColour, record.pointerColour);
    field(values.curMinAngle, record.minAngle);
    field(values.curMaxAngle, record.maxAngle);
    field(values.curAlfa, record.alpha);
    field(values.curTicStyle, record.ticStyle);
    field(values.curTicDelta, record.ticDelta);
    field(values.curTicInner, record.ticInner);
    field(values.curTicOuter, record.ticOuter);
    field(values.curTicWidth, record.ticWidth);
    field(values.curTicLabelsOnOff, record.ticLabels);
    field(values.curTicColour, record.ticColour);
    field(values.curFontName, record.fontName);
    field(values.curFontBold, record.fontBold);
    field(values.curFontItalic, record.fontItalic);
    field(values.curFontSize, record.fontSize);
    field(values.curFontStrikethrough, record.fontStrikethrough);
    field(values.curFontUnderline, record.fontUnderline);
    field(values.curCaptions, record.captions);
    field(values.curCaptionLeft, record.captionLeft);
    field(values.curCaptionTop, record.captionTop);
    field(values.curCaptionColour, record.captionColour);
    field(values.curCaption, record.caption);
    field(values.curAnnulars, record.annulars);
    field(values.curAnnularStart, record.annularStart);
    field(values.curAnnularStop, record.annularStop);
    field(values.curAnnularInner, record.annularInner);
    field(values.curAnnularOuter, record.annularOuter);
    field(values.curAnnularColour, record.annularColour);
    field(values.curBkColour, record.backColour);
    field(values.curTransparent, record.transparent);
}

BitmapRecord faceRecord(const CustomDialRecord &dial)
{
    return {
        .width = dial.width, .height = dial.height, .top = dial.top, .left = dial.left, .alpha = dial.alpha};
}

// The recorder draws a dial as a bitmap, its face, and a gauge, its pointer; the third record is the tool's.
void gather(const controls::OverlayControl &control, Gathering &save)
{
    const auto &dial = static_cast<const CustomDial &>(control);
    const CustomDialValues &values = dial.get();
    const QRect face = controls::faceRect(values.box, save.screen);
    CustomDialRecord record;
    link(values, record, ToRecord());
    record.left = common::toInteger<qint16>(face.left());
    record.top = common::toInteger<qint16>(face.top());
    record.width = common::toInteger<qint16>(face.width());
    record.height = common::toInteger<qint16>(face.height());
    const graphics::PlanePicture &picture = dial.face();
    record.gaugeObject = save.groups.add(gaugeRecordOf(pointerOf(values, save.screen)));
    record.bitmapObject = save.groups.add(faceRecord(record));
    save.images.add(picture);
    save.groups.add(record);
    save.used.mark(values.curVarID);
}

void build(const LayoutRecord &stored, controls::OverlayControl &control, const Loading &load)
{
    const auto &record = std::get<CustomDialRecord>(stored.body);
    CustomDialValues values;
    link(values, record, FromRecord());
    auto &dial = static_cast<CustomDial &>(control);
    dial.set(values);
    dial.setBox(controls::framed(QRect(record.left, record.top, record.width, record.height), load.screen));
    dial.updatePosition();
    const StoredImage *face = load.imageOf(record.bitmapObject);
    if (face && face->picture.planes().size() == controls::faceRect(dial.box(), load.screen).size())
        dial.keepFace(face->picture);
}

void claimParts(const RecordBody &body, ObjectNames &parts)
{
    const auto &dial = std::get<CustomDialRecord>(body);
    parts.insert({{RecordType::Bitmap, dial.bitmapObject}, {RecordType::Gauge, dial.gaugeObject}});
}

} // namespace

FamilyRecord customDialRecord()
{
    return {.family = controls::ControlType::CustomDial,
            .type = RecordType::CustomDial,
            .gather = &gather,
            .build = &build,
            .claimParts = &claimParts};
}

} // namespace layoutfile
