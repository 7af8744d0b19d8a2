#include "platform/settings_file.h"

#include "platform/file_replace.h"

#include <QFile>

namespace platform {

SettingsFile::SettingsFile(const QString &path) : m_path(path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        m_ini = common::IniFile::parse(file.readAll());
}

void SettingsFile::save() const { replaceFile(m_path, m_ini.bytes()); }

} // namespace platform
