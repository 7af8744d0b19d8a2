#pragma once

#include "layoutfile/modSaveVGLFiles.h"
#include "platform/prompts.h"
#include "shell/program_state.h"
#include "surface/frm_interface.h"

namespace shell {

enum class Leaving {
    ByCommand,
    SessionEnds // nobody is there to answer
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
    void mnuPrdCPULoad();

    // Loads a layout without asking and without clearing.
    void load(const QString &path);
    // The silent save at the closing of the design window. A design that cannot become the workspace is kept
    // elsewhere, and the user is told where. False when it lies in no file and the user wants to stay.
    bool saveWorkspace(Leaving leaving = Leaving::ByCommand);
    // Writes the design where the next start finds it after a crash; an empty design leaves no such file.
    // Throws RunTimeError.
    void saveRecovery();

    // The folder of the last layout, from one run to the next. Writing throws RunTimeError.
    void readLastFolder();
    void keepLastFolder() const;

private:
    void LoadProfile();
    void rememberFolder(const QString &path);
    bool clearDesign(); // false when the design could not be backed up; it stays then
    void backUpDesign();
    void keepDesign(platform::Prompts &prompts, QByteArray &layout);
    std::optional<QByteArray> layoutBytes(layoutfile::SaveKind kind, platform::Prompts &prompts,
                                          platform::Progress &progress);
    bool mayLoseVariables();
    bool passesComplexityGate();
    double CalculateComplexity() const;
    bool save(const QString &path);

    ProgramState &m_state;
    platform::Prompts &m_prompts;
    surface::frmInterface &m_design;
    QWidget &m_window;
    QString m_lastFolder;
};

} // namespace shell
