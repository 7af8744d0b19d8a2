#pragma once

#include "graphics/plane_picture.h"
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
    void add(const graphics::PlanePicture &image);
    // Adds the record; none without images.
    void addRecord(RecordGroups &groups) const;

private:
    QByteArrayList m_planes; // shared with the pictures
};

// One image as it was read. It is none where the record does not hold its colours in full, and opaque where
// its alpha plane is missing.
struct StoredImage
{
    int number = 0; // of its colours, from 0; that of its alpha plane is the next
    graphics::PlanePicture picture{};
    bool isComplete = false; // whether the record held all its planes
    QString fileName{};      // of its copy in the picture folder, once it was given one
    QString alphaFileName{};
};
using StoredImages = std::map<qint16, StoredImage>; // by the bitmap record's object number

StoredImages storedImages(const std::vector<LayoutRecord> &records);

} // namespace layoutfile
