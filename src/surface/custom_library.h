#pragma once

#include "controls/control_surface.h"
#include "controls/overlay_control.h"
#include "platform/progress.h"
#include "platform/settings_file.h"
#include "platform/stamp.h"
#include "surface/custom_store.h"
#include "surface/library_icons.h"

namespace surface {

// The user's custom entries with their files: the store, the thumbnails in the cache folder, and the copies
// of pictures in the picture folder, each of which belongs to one entry. Nothing is kept in memory; what
// changes stands in the file at once. What cannot be written throws RunTimeError.
class CustomLibrary
{
public:
    // The copies that the controls of the surface refer to are left alone.
    CustomLibrary(controls::ControlHost &host, const controls::ControlSurface &surface,
                  const platform::Stamp &stamp)
        : m_host(host), m_surface(surface), m_stamp(stamp)
    {
    }

    QList<CustomEntry> entries(const controls::Family &family) const;
    // `key` is that of no entry yet.
    void define(const QString &key, const controls::OverlayControl &control);
    void rename(const QString &key, const QString &newKey);
    void remove(const QString &key);
    // Gives a fresh control the configuration of the entry, and copies of its own of the entry's pictures.
    void configure(controls::OverlayControl &control, const QString &key) const;
    // Makes the thumbnails of all families and entries anew. What fails is left out.
    void GenerateIcons(platform::Progress &progress) const;

private:
    struct Icon
    {
        const controls::Family &family;
        std::optional<CustomEntry> entry; // none for the family's own
    };

    platform::SettingsFile file() const;
    // Keeps the picture of a control that calls its own copy `name`; the name of the new copy, empty for
    // none. The file under the control's name may be gone, or hold another picture.
    QString ownCopy(const QString &name, const QImage &picture) const;
    // What the controls of the surface and the entries of the control's family refer to.
    QStringList usedCopies(const controls::OverlayControl &control,
                           const platform::SettingsFile &store) const;
    void makeIcon(const Icon &icon, platform::SettingsFile &store) const;
    // False when there is none; that costs the entry its picture only.
    bool makeIcon(const controls::Family &family, const QString &name, const IconFilling &fill) const;

    controls::ControlHost &m_host;
    const controls::ControlSurface &m_surface;
    const platform::Stamp &m_stamp;
};

} // namespace surface
