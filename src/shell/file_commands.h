#pragma once

#include "layoutfile/modSaveVGLFiles.h"
#include "platform/file_replace.h"
#include "platform/prompts.h"
#include "shell/program_state.h"
#include "shell/used_layouts.h"
#include "surface/frm_interface.h"

namespace shell {

enum class Leaving {
    ByCommand,
    SessionEnds // nobody is there to answer
};

enum class Parting {
    DesignIsSafe,
    DesignAtRisk, // the window may close, but nobody knows of a file that is sure to hold the design
    Stays         // as the user wants
};

// The file commands of the main window. Each runs to its end inside the calling event; failures are reported
// by the general error message.
class FileCommands
{
public:
    FileCommands(ProgramState &state, platform::Prompts &prompts, surface::frmInterface &design,
                 QWidget &window);

    void mnuNew();
    void mnuLoadConfig();
    void mnuSaveConfig();
    void mnuLoadFactoryLayout();
    void mnuPrdCPULoad();

    // Opens this layout like mnuLoadConfig one that was picked there.
    void open(const QString &path);
    // The same for one of the recent ones. One that is gone leaves the list.
    void openRecent(qsizetype index);

    // Loads a layout without asking and without clearing. False, after a message, when that fails.
    bool load(const QString &path);
    // The silent save at the closing of the design window. A design that cannot become the workspace is kept
    // elsewhere, and the user is told where.
    Parting saveWorkspace(Leaving leaving = Leaving::ByCommand);
    // Writes the design where the next start finds it after a crash; an empty design leaves no such file.
    // Throws RunTimeError.
    void saveRecovery();
    void removeRecovery();

    UsedLayouts &used() { return m_used; }
    const UsedLayouts &used() const { return m_used; }

private:
    bool makeRoom();
    void LoadProfile();
    void name(const QString &path);
    QString pickLayout(const QString &title, const QString &folder);
    bool clearDesign(); // false when the design could not be backed up; it stays then
    void backUpDesign();
    platform::Standing keepDesign(platform::Prompts &prompts, QByteArray &layout);
    std::optional<layoutfile::LayoutBytes> layoutBytes(layoutfile::SaveKind kind, platform::Prompts &prompts,
                                                       platform::Progress &progress);
    bool mayLoseVariables();
    bool passesComplexityGate();
    double CalculateComplexity() const;
    bool save(const QString &path);

    ProgramState &m_state;
    platform::Prompts &m_prompts;
    surface::frmInterface &m_design;
    QWidget &m_window;
    UsedLayouts m_used;
};

} // namespace shell
