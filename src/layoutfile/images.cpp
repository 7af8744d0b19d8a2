#include "layoutfile/images.h"

namespace layoutfile {

namespace {

QByteArray imagePlanes(const std::vector<LayoutRecord> &records)
{
    QByteArray planes;
    for (const LayoutRecord &record : records) {
        if (const auto *stored = std::get_if<ImagePlanesRecord>(&record.body))
            planes = stored->data.bytes;
    }
    return planes;
}

// The next `length` bytes; nothing, and nothing from then on, where there are not so many.
QByteArray take(common::ByteReader &planes, qsizetype length) { return planes.get(length).toByteArray(); }

StoredImage takeImage(common::ByteReader &planes, const BitmapRecord &bitmap, int number)
{
    if (bitmap.width <= 0 || bitmap.height <= 0)
        return {number};
    const qsizetype luma = qsizetype{bitmap.width} * bitmap.height;
    const qsizetype chroma = qsizetype{bitmap.width / 2} * (bitmap.height / 2);
    const graphics::Planes colours{bitmap.width, bitmap.height, take(planes, luma), take(planes, chroma),
                                   take(planes, chroma)};
    const graphics::AlphaPlane alpha{bitmap.width, bitmap.height, take(planes, luma)};
    return {number, graphics::PlanePicture::fromFile(colours, alpha), alpha.isComplete()};
}

} // namespace

void ImageList::add(const graphics::PlanePicture &image)
{
    const graphics::Planes &colours = image.planes();
    m_planes += {colours.y, colours.u, colours.v, image.alpha().values};
}

void ImageList::addRecord(RecordGroups &groups) const
{
    if (!m_planes.isEmpty())
        groups.add(ImagePlanesRecord{Bulk{m_planes.join()}});
}

StoredImages storedImages(const std::vector<LayoutRecord> &records)
{
    const QByteArray bytes = imagePlanes(records);
    common::ByteReader planes(bytes);
    StoredImages images;
    int number = 0;
    for (const LayoutRecord &record : records) {
        const auto *bitmap = std::get_if<BitmapRecord>(&record.body);
        if (!bitmap)
            continue;
        images[record.object] = takeImage(planes, *bitmap, number);
        number += 2;
    }
    return images;
}

} // namespace layoutfile
