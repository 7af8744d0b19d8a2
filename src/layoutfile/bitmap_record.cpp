#include "controls/bitmap/bitmap.h"
#include "layoutfile/family_records.h"
#include "layoutfile/field_link.h"

namespace layoutfile {

namespace {

using controls::Bitmap;
using controls::BitmapValues;

void link(auto &values, auto &record, auto field)
{
    linkLimits(values, record, field);
    field(values.curTopCoord, record.top);
    field(values.curLeftCoord, record.left);
    field(values.curAlfa, record.alpha);
    field(values.curZorder, record.zOrder);
    field(values.curAlfaVariable, record.alphaVariable);
    field(values.curAlfaVarMin, record.alphaVariableMin);
    field(values.curAlfaVarMax, record.alphaVariableMax);
    field(values.curAlfaDefaultVal, record.alphaDefault);
}

// A bitmap without its two pictures is a placeholder, and is not stored.
bool isPlaceholder(const BitmapValues &values)
{
    return values.curFileName.trimmed().isEmpty() || values.curAlfaFileName.trimmed().isEmpty() ||
           values.picture.isEmpty();
}

void gather(const controls::OverlayControl &control, Gathering &save)
{
    const BitmapValues &values = static_cast<const Bitmap &>(control).get();
    if (isPlaceholder(values))
        return;
    BitmapRecord record;
    record.width = common::toInteger<qint16>(values.picture.planes().width);
    record.height = common::toInteger<qint16>(values.picture.planes().height);
    link(values, record, ToRecord());
    save.groups.add(record);
    save.images.add(values.picture);
    save.used.mark(values.curVarID);
}

void build(const LayoutRecord &stored, controls::OverlayControl &control, const Loading &load)
{
    const auto &record = std::get<BitmapRecord>(stored.body);
    BitmapValues values;
    link(values, record, FromRecord());
    const QSizeF size = control.startSize(); // where the planes are missing
    values.box.Width = static_cast<float>(size.width());
    values.box.Height = static_cast<float>(size.height());
    if (const StoredImage *image = load.imageOf(stored.object)) {
        values.picture = image->picture;
        values.curFileName = image->fileName;
        values.curAlfaFileName = image->alphaFileName;
    }
    place(static_cast<Bitmap &>(control), controls::placed(values, load.screen));
}

} // namespace

FamilyRecord bitmapRecord()
{
    return {.family = controls::ControlType::Bitmap,
            .type = RecordType::Bitmap,
            .gather = &gather,
            .build = &build};
}

} // namespace layoutfile
