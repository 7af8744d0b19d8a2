#pragma once

#include "platform/screen.h"
#include "surface/custom_library.h"

#include <QListWidget>
#include <QSplitter>
#include <QTreeWidget>

namespace surface {

// The control library: the tree of families with the user's custom entries and, beside the splitter bar, the
// pictures of the chosen node's entries. An entry is dragged to the canvas, or added with Enter.
class LibraryPanel final : public QSplitter
{
    Q_OBJECT

public:
    LibraryPanel(controls::ControlHost &host, const controls::ControlSurface &surface,
                 const platform::Stamp &stamp);

    void loadControlTree();
    // Makes the pictures of all entries anew and selects the first family.
    void GenerateIcons(platform::Progress &progress);
    // The place of the bar between tree and list in the settings file; what is stored stays while the panel
    // is closed.
    void restoreBar(const platform::SettingsFile &file, const platform::Screen &screen);
    void resetBar(); // as it stands when none is stored
    void saveBar(platform::SettingsFile &file, const platform::Screen &screen) const;

    // Keeps the control's configuration under a name that the user is asked for.
    void mnuDefineCustom_Click(const controls::OverlayControl &control);
    // Of the custom entry that the menu was asked for.
    void mnuRenameControl_Click() { rename(m_menuKey); }
    void mnuDeleteControl_Click() { remove(m_menuKey); }
    // Gives a fresh control what the entry of this key holds.
    void configure(controls::OverlayControl &control, const QString &key) const;

signals:
    void activated(const QString &key);
    void used();                                      // a press that takes the surface's group marks away
    void menuRequested(const QPoint &globalPosition); // of a custom entry

private:
    template <typename View>
    void connectView(View &view);
    QTreeWidgetItem *rootOf(const controls::Family &family) const;
    QTreeWidgetItem *itemOf(const QString &key) const; // null when there is none
    bool ControlNameExists(const QString &key) const { return itemOf(key) != nullptr; }
    void loadEntries(const controls::Family &family);
    // Shows the family's entries as they stand now. The selection stays, but `former` gives it to `latter`.
    void reload(const controls::Family &family, const QString &former = {}, const QString &latter = {});
    // Shows the entries of the selected node with their pictures.
    void loadControlList();
    void addToList(const QString &key, const QString &caption, const QString &thumbnail);
    void showMenu(const QString &key, const QPoint &globalPosition);
    void rename(const QString &key);
    void remove(const QString &key);

    controls::ControlHost &m_host;
    CustomLibrary m_custom;
    QTreeWidget *m_tree; // trvControl
    QListWidget *m_list; // lvControl
    QString m_menuKey;
};

} // namespace surface
