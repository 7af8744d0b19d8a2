#include "platform/settings_file.h"

#include "common/run_time_error.h"
#include "platform/file_replace.h"
#include "platform/guards.h"

#include <QFileInfo>

namespace platform {

SettingsFile::SettingsFile(const QString &path) : m_path(path)
{
    if (QFileInfo(path).isFile())
        m_wasRead = skipFailures([&] { m_ini = common::IniFile::parse(readFile(path)); });
}

void SettingsFile::save() const
{
    if (!m_wasRead)
        throw common::RunTimeError(QStringLiteral("%1: the old content cannot be read").arg(m_path));
    replaceFile(m_path, m_ini.bytes());
}

} // namespace platform
