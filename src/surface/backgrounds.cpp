#include "surface/backgrounds.h"

#include "graphics/picture_loader.h"
#include "platform/file_replace.h"
#include "platform/settings_keys.h"

#include <QFileInfo>

namespace surface {

using platform::SettingsFile;
using platform::TextKey;
using recorder::VideoStandard;
namespace keys = platform::keys;

namespace {

const TextKey &keyOf(VideoStandard standard)
{
    return standard == VideoStandard::Pal ? keys::PalPicture : keys::NtscPicture;
}

const TextKey &otherKey(VideoStandard standard)
{
    return standard == VideoStandard::Pal ? keys::NtscPicture : keys::PalPicture;
}

const char *builtIn(VideoStandard standard)
{
    return standard == VideoStandard::Pal ? ":/pal_background.jpg" : ":/ntsc_background.jpg";
}

// The name that a chosen file's copy gets: its own, unless the settings cannot give that back, the other
// standard uses it, or something that is no picture might be lost.
QString copyName(const QString &own, VideoStandard standard, const SettingsFile &settings)
{
    const TextKey &key = keyOf(standard);
    SettingsFile tried = settings;
    key.write(tried, own);
    const bool isKept = key.read(tried) == own && !platform::nameWithin({}, own).isEmpty();
    const bool isFree =
        otherKey(standard).read(settings) != own && own.endsWith(QLatin1String(".bmp"), Qt::CaseInsensitive);
    return isKept && isFree ? own : QLatin1String(key.fallback);
}

} // namespace

QSize backgroundSize(VideoStandard standard)
{
    return {recorder::CanvasWidth, recorder::canvasHeight(standard)};
}

QString Backgrounds::fileName(VideoStandard standard) const
{
    return keyOf(standard).read(SettingsFile(m_folders.ConfigFile()));
}

const QImage &Backgrounds::picture(VideoStandard standard)
{
    if (held(standard).isNull())
        load(standard);
    return held(standard);
}

void Backgrounds::load(VideoStandard standard)
{
    const QString path = platform::nameWithin(m_folders.GetAppDataFolder(), fileName(standard));
    const QImage found = graphics::loadPicture(path).picture;
    if (found.size() == backgroundSize(standard))
        held(standard) = found;
    else if (held(standard).isNull())
        held(standard).load(QLatin1String(builtIn(standard)));
}

void Backgrounds::choose(VideoStandard standard, const QString &path, SettingsFile &settings) const
{
    const QString name = copyName(QFileInfo(path).fileName(), standard, settings);
    platform::replaceFile(m_folders.GetAppDataFolder() + name, platform::readFile(path));
    keyOf(standard).write(settings, name);
}

} // namespace surface
