#include "surface/custom_library.h"

#include "common/code_page.h"
#include "controls/bitmap/picture_copies.h"
#include "controls/factories.h"
#include "graphics/picture_loader.h"
#include "platform/guards.h"

#include <QDir>

#include <algorithm>

namespace surface {

using controls::Family;
using controls::OverlayControl;
using platform::SettingsFile;
using platform::skipFailures;

namespace {

// Nothing when there is no such entry.
std::optional<CustomEntry> entryOf(const SettingsFile &file, const QString &key)
{
    const QList<CustomEntry> entries = customEntries(file.ini(), *controls::familyOfKey(key));
    const auto found = std::ranges::find(entries, key, &CustomEntry::key);
    return found == entries.end() ? std::nullopt : std::optional(*found);
}

QStringList textsFor(const OverlayControl &control, const SettingsFile &file, int place)
{
    return customTexts(file.ini(), control.family(), place, control.Serialise().size());
}

void removeWithin(const QString &folder, const QString &name)
{
    QFile::remove(platform::nameWithin(folder, name)); // one that is gone is no loss
}

} // namespace

SettingsFile CustomLibrary::file() const { return SettingsFile(m_host.folders().ControlConfigFile()); }

QList<CustomEntry> CustomLibrary::entries(const Family &family) const
{
    return customEntries(file().ini(), family);
}

void CustomLibrary::define(const QString &key, const OverlayControl &control)
{
    const Family &family = control.family();
    const QStringList texts = withOwnCopies(control);
    const QString thumbnail = thumbnailName(m_host.folders().cache, m_stamp.now());
    makeIcon(family, thumbnail, [&](OverlayControl &icon) { fillConfigured(icon, texts); });
    SettingsFile store = file();
    defineEntry(store.ini(), family, key, thumbnail, texts);
    if (const auto reason = platform::failureOf([&] { store.save(); })) {
        removeFiles(control, thumbnail, texts);
        throw common::RunTimeError(*reason);
    }
}

void CustomLibrary::rename(const QString &key, const QString &newKey)
{
    SettingsFile store = file();
    const auto entry = entryOf(store, key);
    if (!entry)
        return;
    renameEntry(store.ini(), *controls::familyOfKey(key), entry->place, newKey);
    store.save();
}

void CustomLibrary::remove(const QString &key)
{
    SettingsFile store = file();
    const auto entry = entryOf(store, key);
    if (!entry)
        return;
    const Family &family = *controls::familyOfKey(key);
    const auto control = controls::factoryOf(family.type)(family, m_host);
    const QStringList texts = textsFor(*control, store, entry->place);
    deleteEntry(store.ini(), family, entry->place);
    store.save();
    removeFiles(*control, entry->thumbnail, texts);
}

void CustomLibrary::removeFiles(const OverlayControl &control, const QString &thumbnail,
                                const QStringList &texts) const
{
    const platform::Folders &folders = m_host.folders();
    removeWithin(folders.cache, thumbnail);
    const QByteArray library = file().ini().bytes();
    for (const auto &[element, picture] : control.copies()) {
        if (!library.contains(common::toCodePage(texts[element]))) // entries from elsewhere may share them
            removeWithin(folders.pictureFolder(), texts[element]);
    }
}

void CustomLibrary::configure(OverlayControl &control, const QString &key) const
{
    const SettingsFile store = file();
    const auto entry = entryOf(store, key);
    if (!entry)
        return control.applyInitialProperties();
    QStringList texts = textsFor(control, store, entry->place);
    for (const auto &[element, picture] : control.copies()) {
        const QString wanted = controls::loadedName('S', m_stamp.now().time(), static_cast<int>(element));
        skipFailures([&] { texts[element] = ownCopy(texts[element], wanted, {}); });
    }
    fillConfigured(control, texts);
}

QStringList CustomLibrary::withOwnCopies(const OverlayControl &control) const
{
    QStringList texts = control.Serialise();
    for (const auto &[element, picture] : control.copies())
        texts[element] = ownCopy(texts[element], texts[element], std::get<QImage>(control.read(picture)));
    return texts;
}

QString CustomLibrary::ownCopy(const QString &name, const QString &wanted, const QImage &picture) const
{
    const QString folder = m_host.folders().pictureFolder();
    if (name.trimmed().isEmpty())
        return name;
    QByteArray bytes;
    const QString path = platform::nameWithin(folder, name);
    if (!skipFailures([&] { bytes = platform::readFile(path); }) && !picture.isNull())
        bytes = graphics::bmpOf(picture);
    if (bytes.isEmpty())
        return name;
    const QString own = controls::ownCopyName(folder, wanted);
    controls::keepCopy(folder, own, bytes, platform::Flush::ToDevice);
    return own;
}

void CustomLibrary::GenerateIcons(platform::Progress &progress) const
{
    platform::ProgressScope scope(progress, QStringLiteral("Preparing the control library....."));
    SettingsFile store = file();
    std::vector<Icon> icons;
    for (const Family &family : controls::families()) {
        icons.push_back({family, {}});
        for (const CustomEntry &entry : customEntries(store.ini(), family))
            icons.push_back({family, entry});
    }
    for (std::size_t i = 0; i < icons.size(); ++i) {
        makeIcon(icons[i], store);
        scope.advance(0, 100, static_cast<qsizetype>(i) + 1, static_cast<qsizetype>(icons.size()));
    }
    if (icons.size() > controls::families().size())
        skipFailures([&] { store.save(); });
}

void CustomLibrary::makeIcon(const Icon &icon, SettingsFile &store) const
{
    if (!icon.entry) {
        makeIcon(icon.family, QLatin1String(icon.family.iconFile), fillStandard);
        return;
    }
    const int place = icon.entry->place;
    const QString name = thumbnailName(m_host.folders().cache, m_stamp.now());
    if (makeIcon(icon.family, name,
                 [&](OverlayControl &control) { fillConfigured(control, textsFor(control, store, place)); }))
        setThumbnail(store.ini(), icon.family, place, name);
}

bool CustomLibrary::makeIcon(const Family &family, const QString &name, const IconFilling &fill) const
{
    bool isWritten = false;
    skipFailures(
        [&] { isWritten = libraryIcon(family, m_host, fill).save(m_host.folders().cache + name, "BMP"); });
    return isWritten;
}

} // namespace surface
