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

struct Row
{
    const TextKey &name;
    const char *builtIn;
};

constexpr Row Ntsc{keys::NtscPicture, ":/ntsc_background.jpg"};
constexpr Row Pal{keys::PalPicture, ":/pal_background.jpg"};

constexpr const Row &rowOf(VideoStandard standard) { return standard == VideoStandard::Pal ? Pal : Ntsc; }

constexpr const Row &otherRow(VideoStandard standard) { return standard == VideoStandard::Pal ? Ntsc : Pal; }

// Whether the settings give this name back, and no file that is no picture can have it.
bool canBeKept(const QString &name, const TextKey &key, SettingsFile settings)
{
    key.write(settings, name);
    return key.read(settings) == name && !platform::nameWithin({}, name).isEmpty() &&
           name.endsWith(QLatin1String(".bmp"), Qt::CaseInsensitive);
}

// The name that a chosen file's copy gets: its own or the usual one, and never that of the other standard's
// picture.
QString copyName(const QString &own, VideoStandard standard, const SettingsFile &settings)
{
    const TextKey &key = rowOf(standard).name;
    const TextKey &otherKey = otherRow(standard).name;
    const QString other = otherKey.read(settings);
    if (own != other && canBeKept(own, key, settings))
        return own;
    return QLatin1String(other == QLatin1String(key.fallback) ? otherKey.fallback : key.fallback);
}

} // namespace

QString Backgrounds::fileName(VideoStandard standard) const
{
    return rowOf(standard).name.read(SettingsFile(m_folders.ConfigFile()));
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
    if (!found.isNull())
        held(standard) = found;
    else if (held(standard).isNull())
        held(standard).load(QLatin1String(rowOf(standard).builtIn));
}

Backgrounds::Copy Backgrounds::choose(VideoStandard standard, const QString &path,
                                      SettingsFile &settings) const
{
    const QString name = copyName(QFileInfo(path).fileName(), standard, settings);
    rowOf(standard).name.write(settings, name);
    return {m_folders.GetAppDataFolder() + name, platform::readFile(path)};
}

} // namespace surface
