#include "shell/used_layouts.h"

#include "platform/settings_keys.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace shell {

using namespace Qt::StringLiterals;

namespace keys = platform::keys;

void UsedLayouts::read()
{
    const platform::SettingsFile file(m_folders.ConfigFile());
    m_folder = keys::LayoutFolder.read(file);
    for (const platform::PathKey &key : keys::RecentLayouts) {
        if (const QString path = key.read(file); !path.isEmpty())
            m_recent.append(path);
    }
    m_recent.removeDuplicates();
}

void UsedLayouts::keep() const
{
    platform::SettingsFile file(m_folders.ConfigFile());
    bool differs = false;
    const auto write = [&](const platform::PathKey &key, const QString &path) {
        if (key.read(file) == path)
            return;
        key.write(file, path);
        differs = true;
    };
    write(keys::LayoutFolder, m_folder);
    for (std::size_t i = 0; i < keys::RecentLayouts.size(); ++i)
        write(keys::RecentLayouts[i], m_recent.value(static_cast<qsizetype>(i)));
    if (differs)
        file.save();
}

QString UsedLayouts::folder() const { return QFileInfo(m_folder).isDir() ? m_folder : QString(); }

bool UsedLayouts::isOwn(const QString &path) const
{
    const QDir folder = QFileInfo(path).absoluteDir();
    return folder == QDir(m_folders.GetAppDataFolder()) || folder == QDir(m_folders.exampleLayouts());
}

void UsedLayouts::choose(const QString &path)
{
    if (!isOwn(path))
        m_folder = QFileInfo(path).absolutePath();
}

void UsedLayouts::add(const QString &path)
{
    if (isOwn(path))
        return;
    const QString absolute = QFileInfo(path).absoluteFilePath();
    m_recent.removeAll(absolute);
    m_recent.prepend(absolute);
    m_recent.resize(std::min(m_recent.size(), qsizetype{keys::RecentLayouts.size()}));
}

QString recentCaption(qsizetype index, const QString &path)
{
    constexpr qsizetype Longest = 60; // characters
    QString shown = QDir::toNativeSeparators(path);
    if (shown.size() > Longest)
        shown = shown.first(Longest / 3) + u"..."_s + shown.last(Longest * 2 / 3);
    return u"&%1 %2"_s.arg(index + 1).arg(shown.replace('&'_L1, "&&"_L1));
}

} // namespace shell
