#pragma once

#include "layoutfile/modSaveVGLFiles.h"
#include "platform/prompts.h"
#include "shell/program_state.h"
#include "surface/frm_interface.h"

namespace shell {

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
    // The silent save at the closing of the design window.
    void saveWorkspace();

private:
    void LoadProfile();
    bool clearDesign(); // false when the design could not be backed up; it stays then
    void backUpDesign();
    std::optional<QByteArray> savedApart(layoutfile::SaveKind kind, platform::Progress &progress);
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
