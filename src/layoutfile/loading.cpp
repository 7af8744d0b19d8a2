#include "layoutfile/loading.h"

#include "controls/picture_copies.h"
#include "graphics/picture_loader.h"

#include <algorithm>

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

void Loading::keepCopies(const ObjectNames &claimed)
{
    const QString folder = folders.pictureFolder();
    const QTime time = stamp.now().time();
    std::vector<std::pair<QString, QByteArray>> copies;
    const auto named = [&](char kind, int number, const QImage &picture) {
        const QByteArray bytes = graphics::bmpOf(picture);
        QString name = controls::copyName(folder, controls::loadedName(kind, time, number), bytes);
        copies.emplace_back(name, bytes);
        return name;
    };
    for (auto &[object, image] : m_images) {
        if (image.picture.isEmpty() || claimed.contains({RecordType::Bitmap, object}))
            continue;
        image.fileName = named('S', image.number, image.picture.picture());
        image.alphaFileName = named('A', image.number + 1, image.picture.alphaPicture());
    }
    for (const auto &[name, bytes] : copies)
        controls::keepCopy(folder, name, bytes, platform::Flush::None);
}

int Loading::damagedImages(const ObjectNames &claimed) const
{
    return static_cast<int>(std::count_if(m_images.begin(), m_images.end(), [&](const auto &entry) {
        const auto &[object, image] = entry;
        return !image.isComplete && !claimed.contains({RecordType::Bitmap, object});
    }));
}

} // namespace layoutfile
