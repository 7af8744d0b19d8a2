#pragma once

#include "common/ini_file.h"

#include <optional>

namespace platform {

// A settings file on disk: read once, changed in memory, replaced as a whole by save(). A file that is
// missing or cannot be read counts as empty.
class SettingsFile
{
public:
    explicit SettingsFile(const QString &path);

    QString read(const QString &section, const QString &key, const QString &fallback, int bufferSize) const
    {
        return m_ini.read(section, key, fallback, bufferSize);
    }
    bool write(const QString &section, const QString &key, const std::optional<QString> &value)
    {
        return m_ini.write(section, key, value);
    }
    common::IniFile &ini() { return m_ini; }
    const common::IniFile &ini() const { return m_ini; }

    // Throws RunTimeError when the file cannot be written, or when it could not be read: what it holds would
    // be lost.
    void save() const;

private:
    QString m_path;
    bool m_wasRead = true; // or is not there
    common::IniFile m_ini;
};

} // namespace platform
