#include "graphics/picture_choice.h"

#include "graphics/picture_loader.h"

#include <QFileInfo>

namespace graphics {

namespace {

QString complaint(PictureFault fault)
{
    switch (fault) {
    case PictureFault::None:
        break;
    case PictureFault::Unreadable:
        return QStringLiteral("The file cannot be read.");
    case PictureFault::Empty:
        return QStringLiteral("The file is empty.");
    case PictureFault::NotAPicture:
        return QStringLiteral("The file is not a bitmap.");
    case PictureFault::TooLarge:
        return QStringLiteral("The picture is too large. It may be %1 pixels wide and high at most.")
            .arg(MaxPictureSide);
    case PictureFault::Cut:
        return QStringLiteral("The file is damaged, a part of the picture is missing.");
    }
    return {};
}

} // namespace

platform::FileRequest pictureRequest(const QString &folder)
{
    platform::FileRequest request;
    request.folder = folder;
    request.filter = QStringLiteral("Bitmap files (*.bmp)|*.bmp");
    request.preview = [](const QString &path) { return loadPicture(path).picture; };
    return request;
}

QImage chosenPicture(const QString &path, platform::Prompts &prompts)
{
    const LoadedPicture loaded = loadPicture(path);
    if (!loaded)
        prompts.message(platform::Icon::Critical, platform::ProductTitle,
                        QFileInfo(path).fileName() + QLatin1Char('\n') + complaint(loaded.fault));
    return loaded.picture;
}

} // namespace graphics
