#include "controls/text_tag/text_tag.h"
#include "layoutfile/family_records.h"
#include "layoutfile/field_link.h"
#include "layoutfile/text_record.h"

#include <algorithm>

namespace layoutfile {

namespace {

using controls::TextTag;
using controls::TextTagValues;

constexpr qsizetype ShortText = 11; // bytes; a longer text has a record of its own

// The left edge, or the right one with a minus.
qint16 edgeOf(const TextTagValues &values, const platform::Screen &screen)
{
    const controls::Box &box = values.box;
    const float twips =
        values.isLeftAligned() ? box.Left + controls::FrameTwips : controls::FrameTwips - box.right();
    return common::toInteger<qint16>(screen.toPixelsX(twips));
}

void gather(const controls::OverlayControl &control, Gathering &save)
{
    const TextTagValues &values = static_cast<const TextTag &>(control).get();
    const QByteArray text = controls::storedText(values.text);
    const QByteArray trimmed = text.trimmed();
    TextTagRecord record;
    linkText(values, record, ToRecord());
    record.left = edgeOf(values, save.screen);
    record.top = common::toInteger<qint16>(save.screen.toPixelsY(values.box.Top + controls::FrameTwips));
    record.text.text = text;
    record.textLength = static_cast<quint8>(std::min(trimmed.size(), ShortText));
    putFont(values, TextTagValues::UsualSize, save.fonts, record);
    const qint16 object = save.groups.add(record);
    if (trimmed.size() > ShortText)
        save.groups.add(LongTextRecord{{trimmed}, static_cast<quint8>(trimmed.size())}, object);
    save.used.mark(values.curVarID);
}

// A long text takes the place of the short one and of its length; one that says to be as long as a short text
// is not believed.
QString textOf(const TextTagRecord &record, const LongTextRecord *longer)
{
    const QByteArray text = longer ? longer->text.text.trimmed() : QByteArray();
    const bool isLong = !text.isEmpty() && longer->length != ShortText;
    return common::fromCodePage(isLong ? text : record.text.text.trimmed());
}

void build(const LayoutRecord &stored, controls::OverlayControl &control, const Loading &load)
{
    const auto &record = std::get<TextTagRecord>(stored.body);
    TextTagValues values;
    linkText(values, record, FromRecord());
    takePlace(values, record.left, record.top);
    values.text = textOf(record, load.find<LongTextRecord>(stored.object));
    takeFont(values, record);
    static_cast<TextTag &>(control).set(values);
}

} // namespace

FamilyRecord textTagRecord()
{
    return {.family = controls::ControlType::TextTag,
            .type = RecordType::TextTag,
            .gather = &gather,
            .build = &build};
}

} // namespace layoutfile
