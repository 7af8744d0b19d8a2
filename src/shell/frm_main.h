#pragma once

#include "forms/dialog.h"
#include "shell/commands.h"
#include "shell/file_commands.h"
#include "shell/live_label.h"
#include "shell/recovery.h"
#include "shell/variable_commands.h"

#include <QLabel>
#include <QMainWindow>
#include <QMenu>

#include <functional>

namespace shell {

// The main window: menus, toolbar, status bar and the design window inside. Its commands are rows of one
// table; what they show is derived from the state by refreshFromState().
class frmMain final : public QMainWindow
{
    Q_OBJECT

public:
    frmMain(ProgramState &state, platform::Prompts &prompts);

    // What the commands act on.
    ProgramState &state() const { return m_state; }
    platform::Prompts &prompts() const { return m_prompts; }
    surface::frmInterface &design() const { return *m_design; }
    FileCommands &files() { return m_files; }
    const FileCommands &files() const { return m_files; }
    VariableCommands &variables() { return m_variables; }
    forms::Context dialogContext() { return {m_prompts, m_state.locale, this}; }
    // Whether the group's popup was opened to paste.
    bool groupMenuPastes() const { return m_groupMenuPastes; }
    Recovery &recovery() { return m_recovery; }

    // Caption, check marks and texts of the menus and the status bar.
    void refreshFromState();

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    bool takesDrops() const;
    void runCommand(const std::function<void()> &command);
    void makeActions();
    void makeMenus();
    // A menu of the menu bar with the entries of this place.
    QMenu *addMenu(QMenu *menu, const char *name, unsigned place);
    void makeToolbar();
    void makeStatusBar();
    void makePopups();
    // A popup with the entries of this place; it opens where the design window requests it.
    template <typename Signal>
    void addPopup(QMenu &popup, const char *name, unsigned place, Signal requested);
    void fill(QWidget &menu, unsigned place);
    void fillAddMenu(QMenu &menu, const QString &prefix);

    ProgramState &m_state;
    platform::Prompts &m_prompts;
    surface::frmInterface *m_design;
    FileCommands m_files;
    Recovery m_recovery{m_files};
    VariableCommands m_variables;
    QList<QAction *> m_actions; // of commands(), in its order
    // Of the menu bar, with the place of their entries.
    std::vector<std::pair<QMenu *, unsigned>> m_menus;
    QMenu m_canvasPopup;  // mnuDropDown
    QMenu m_controlPopup; // mnuDropDown3
    QMenu m_groupPopup;   // mnuGroupControl
    QMenu m_libraryPopup; // mnuControl
    bool m_groupMenuPastes = false;
    LiveLabel *m_position;
    LiveLabel *m_current; // family, variable and place of the current control
    QLabel *m_zoom;
    QLabel *m_standard;
    QLabel *m_bitRate;
};

} // namespace shell
