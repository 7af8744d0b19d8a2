#pragma once

#include "platform/folders.h"

#include <QStringList>

namespace shell {

// Where the user keeps layouts, from one run to the next: the folder of the last one, and the last ones
// themselves. The program's own files say nothing about that.
class UsedLayouts
{
public:
    explicit UsedLayouts(const platform::Folders &folders) : m_folders(folders) {}

    void read();
    // Throws RunTimeError when the settings cannot be written.
    void keep() const;

    // Empty as long as no layout was used, and while the folder is not there: its card may come back.
    QString folder() const;
    // Paths, the newest first.
    const QStringList &recent() const { return m_recent; }

    // The user chose this layout.
    void choose(const QString &path);
    // It was loaded or saved.
    void add(const QString &path);
    void remove(const QString &path) { m_recent.removeAll(path); }

private:
    bool isOwn(const QString &path) const;

    const platform::Folders &m_folders;
    QString m_folder;
    QStringList m_recent;
};

// The menu entry of a recent layout, counted from 0: its number is the mnemonic, a long path loses its
// middle.
QString recentCaption(qsizetype index, const QString &path);

} // namespace shell
