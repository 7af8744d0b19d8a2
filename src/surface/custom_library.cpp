#include "surface/custom_library.h"

#include "controls/factories.h"
#include "controls/picture_copies.h"
#include "graphics/picture_loader.h"
#include "platform/guards.h"

#include <QFile>

#include <algorithm>
#include <utility>

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

// The names of copies among the texts.
QStringList copyNames(const OverlayControl &control, const QStringList &texts)
{
    QStringList names;
    for (const auto &[element, picture] : control.copies())
        names.append(texts[element]);
    return names;
}

// For the copy that a placed control gets: the first is of its picture, the next one of its alpha.
QString placedName(const OverlayControl &control, qsizetype element, const QTime &time)
{
    const char kind = element == control.copies().front().element ? 'S' : 'A';
    return controls::loadedName(kind, time, static_cast<int>(element));
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
    const platform::Folders &folders = m_host.folders();
    const QString thumbnail = thumbnailName(folders.cache, m_stamp.now());
    QStringList made;
    const auto reason = platform::failureOf([&] {
        QStringList texts = control.Serialise();
        for (const auto &[element, picture] : control.copies()) {
            texts[element] = ownCopy(texts[element], std::get<QImage>(control.read(picture)));
            made.append(texts[element]);
        }
        makeIcon(family, thumbnail, [&](OverlayControl &icon) { fillConfigured(icon, texts); });
        SettingsFile store = file();
        defineEntry(store.ini(), family, key, thumbnail, texts);
        store.save();
    });
    if (!reason)
        return;
    for (const QString &name : made)
        removeWithin(folders.pictureFolder(), name);
    removeWithin(folders.cache, thumbnail);
    throw common::RunTimeError(*reason);
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
    removeWithin(m_host.folders().cache, entry->thumbnail);
    const QStringList used = usedCopies(*control, store);
    for (const QString &name : copyNames(*control, texts)) {
        if (!used.contains(name)) // entries from elsewhere and controls may share them
            removeWithin(m_host.folders().pictureFolder(), name);
    }
}

QStringList CustomLibrary::usedCopies(const OverlayControl &control, const SettingsFile &store) const
{
    QStringList used;
    for (const OverlayControl *placed : m_surface.controls())
        used += copyNames(*placed, placed->Serialise());
    for (const CustomEntry &entry : customEntries(store.ini(), control.family()))
        used += copyNames(control, textsFor(control, store, entry.place));
    return used;
}

void CustomLibrary::configure(OverlayControl &control, const QString &key) const
{
    const SettingsFile store = file();
    const auto entry = entryOf(store, key);
    if (!entry)
        return control.applyInitialProperties();
    QStringList texts = textsFor(control, store, entry->place);
    const QString folder = m_host.folders().pictureFolder();
    for (const auto &[element, picture] : control.copies()) {
        QString &name = texts[element];
        const QString wanted = placedName(control, element, m_stamp.now().time());
        const QString entrys = std::exchange(name, {});
        skipFailures([&] {
            const QByteArray bytes = platform::readFile(platform::nameWithin(folder, entrys));
            name = entrys; // shared where no file of its own can be written
            const QString own = controls::ownCopyName(folder, wanted, entrys);
            controls::keepCopy(folder, own, bytes, platform::Flush::None);
            name = own;
        });
    }
    fillConfigured(control, texts);
}

QString CustomLibrary::ownCopy(const QString &name, const QImage &picture) const
{
    if (name.trimmed().isEmpty() || picture.isNull())
        return {};
    const QString folder = m_host.folders().pictureFolder();
    QString own = controls::ownCopyName(folder, name, name);
    controls::keepCopy(folder, own, graphics::bmpOf(picture), platform::Flush::ToDevice);
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
