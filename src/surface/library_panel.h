#pragma once

#include "platform/folders.h"
#include "platform/screen.h"
#include "platform/settings_file.h"

#include <QListWidget>
#include <QSplitter>
#include <QTreeWidget>

namespace surface {

// The control library: the tree of families and, beside the splitter bar, the pictures of the chosen family's
// entries. An entry is dragged to the canvas, or added with Enter.
class LibraryPanel final : public QSplitter
{
    Q_OBJECT

public:
    explicit LibraryPanel(const platform::Folders &folders);

    void loadControlTree();
    // Selects the first family that can be placed.
    void showFirstEntries();
    // The place of the bar between tree and list in the settings file; what is stored stays while the panel
    // is closed.
    void restoreBar(const platform::SettingsFile &file, const platform::Screen &screen);
    void resetBar(); // as it stands when none is stored
    void saveBar(platform::SettingsFile &file, const platform::Screen &screen) const;
    // Key of the selected node; empty when none is.
    QString selectedKey() const;

signals:
    void activated(const QString &key);
    void used(); // a press that takes the surface's group marks away

private:
    // Shows the entries of the selected node with their pictures.
    void loadControlList();
    const platform::Folders &m_folders;
    QTreeWidget *m_tree; // trvControl
    QListWidget *m_list; // lvControl
};

} // namespace surface
