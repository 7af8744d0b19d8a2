#include "layoutfile/images.h"

namespace layoutfile {

namespace {

// The next plane; nothing, and nothing from then on, where it is not there in full.
QByteArray take(common::ByteReader &planes, QSize size)
{
    return planes.get(qsizetype{size.width()} * size.height()).toByteArray();
}

StoredImage takeImage(common::ByteReader &planes, const BitmapRecord &bitmap, int number)
{
    const QSize size(bitmap.width, bitmap.height), chroma = graphics::chromaSize(size);
    if (size.isEmpty())
        return {number};
    const graphics::Planes colours{size.width(), size.height(), take(planes, size), take(planes, chroma),
                                   take(planes, chroma)};
    const graphics::AlphaPlane alpha{size.width(), size.height(), take(planes, size)};
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
    const QByteArray bytes = bulkOf<ImagePlanesRecord>(records);
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
