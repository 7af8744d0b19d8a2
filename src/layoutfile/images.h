#pragma once

#include "graphics/planes.h"
#include "layoutfile/layout_file.h"

#include <map>

namespace layoutfile {

// The image planes of a layout: one record with the planes of all stored bitmaps back to back, in the order
// of the bitmap records, which tell the sizes.

// The planes as a save gathers them.
class ImageList
{
public:
    // To be called once for each bitmap record, in their order.
    void add(const graphics::Planes &colours, const graphics::AlphaPlane &alpha);
    // Adds the record; none without images.
    void addRecord(RecordGroups &groups) const;

private:
    QByteArray m_planes;
};

// One image as it was read. Planes that the record does not hold in full are empty.
struct StoredImage
{
    int number = 0; // of its colours, from 0; that of its alpha plane is the next
    graphics::Planes colours;
    graphics::AlphaPlane alpha;
};
using StoredImages = std::map<qint16, StoredImage>; // by the bitmap record's object number

StoredImages storedImages(const std::vector<LayoutRecord> &records);

} // namespace layoutfile
