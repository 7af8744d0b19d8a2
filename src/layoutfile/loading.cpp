#include "layoutfile/loading.h"

namespace layoutfile {

Loading::Loading(const std::vector<LayoutRecord> &records, const platform::Folders &givenFolders,
                 const platform::Stamp &givenStamp, const platform::Screen &givenScreen)
    : folders(givenFolders), stamp(givenStamp), screen(givenScreen), m_images(storedImages(records))
{
    for (const LayoutRecord &record : records)
        m_objects[{record.type(), record.object}] = &record;
}

const StoredImage *Loading::imageOf(qint16 bitmapObject) const
{
    const auto found = m_images.find(bitmapObject);
    return found == m_images.end() ? nullptr : &found->second;
}

} // namespace layoutfile
