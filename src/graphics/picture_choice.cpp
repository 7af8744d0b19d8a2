#include "graphics/picture_choice.h"

#include "graphics/picture_loader.h"

#include <QFileInfo>

namespace graphics {

using namespace Qt::StringLiterals;

namespace {

QString complaint(PictureFault fault)
{
    switch (fault) {
    case PictureFault::None:
        break;
    case PictureFault::Unreadable:
        return u"The file cannot be read."_s;
    case PictureFault::Empty:
        return u"The file is empty."_s;
    case PictureFault::NotAPicture:
        return u"The file is not a bitmap."_s;
    case PictureFault::TooLarge:
        return u"The picture is too large. It may be %1 pixels wide and high at most."_s.arg(MaxPictureSide);
    case PictureFault::Cut:
        return u"The file is damaged, a part of the picture is missing."_s;
    }
    return {};
}

} // namespace

platform::FileRequest pictureRequest(const QString &folder)
{
    platform::FileRequest request;
    request.folder = folder;
    request.filter = u"Bitmap files (*.bmp)|*.bmp"_s;
    request.preview = [](const QString &path) { return loadPicture(path).picture; };
    return request;
}

QImage chosenPicture(const QString &path, platform::Prompts &prompts)
{
    const LoadedPicture loaded = loadPicture(path);
    if (!loaded)
        prompts.message(platform::Icon::Critical, platform::ProductTitle,
                        QFileInfo(path).fileName() + '\n'_L1 + complaint(loaded.fault));
    return loaded.picture;
}

} // namespace graphics
