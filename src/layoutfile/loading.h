#pragma once

#include "layoutfile/images.h"
#include "platform/folders.h"
#include "platform/screen.h"
#include "platform/stamp.h"

#include <map>
#include <set>

namespace layoutfile {

using ObjectName = std::pair<RecordType, qint16>;
using ObjectNames = std::set<ObjectName>;

// What a control is built from besides its own record.
class Loading
{
public:
    Loading(const std::vector<LayoutRecord> &records, const platform::Folders &folders,
            const platform::Stamp &stamp, const platform::Screen &screen);

    // The record of another type under this object number, the last of several; null when there is none.
    template <typename Record>
    const Record *find(qint16 object) const
    {
        const auto found = m_objects.find({Record::Type, object});
        return found == m_objects.end() ? nullptr : &std::get<Record>(found->second->body);
    }
    // The image of the bitmap record under this object number; null when there is none.
    const StoredImage *imageOf(qint16 bitmapObject) const;

    // Names the images that no other record claims, and puts copies of them into the user's picture folder.
    // Throws RunTimeError when one cannot be written; all have their names then.
    void keepCopies(const ObjectNames &claimed);
    // How many of these images the layout does not hold in full.
    int damagedImages(const ObjectNames &claimed) const;

    const platform::Folders &folders;
    const platform::Stamp &stamp;
    const platform::Screen screen;

private:
    std::map<ObjectName, const LayoutRecord *> m_objects;
    StoredImages m_images;
};

} // namespace layoutfile
