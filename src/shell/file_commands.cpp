#include "shell/file_commands.h"

#include "common/run_time_error.h"
#include "controls/complexity.h"
#include "controls/overlay_control.h"
#include "layoutfile/modLoadVGLFiles.h"
#include "layoutfile/modSaveVGLFiles.h"
#include "platform/desktop/busy.h"
#include "platform/file_replace.h"
#include "platform/guards.h"
#include "shell/save_rules.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace shell {

using layoutfile::SaveKind;
using layoutfile::SaveResult;
using platform::Icon;
using platform::ProductTitle;

namespace {

const QString OpenFilter = QStringLiteral("VGL files|*.VGL");
const QString SaveFilter = QStringLiteral("VGL Files(*.VGL)|*.VGL");
const QString DefaultName = QStringLiteral("DEFAULT.VGL");

enum LoadOption { ClearFirst, SaveAndClearFirst, OnTop, Abort };

layoutfile::SaveContext saveContext(ProgramState &state, surface::frmInterface &design,
                                    platform::Prompts &prompts, platform::Progress &progress)
{
    return {design,   state.catalogue, state.settings, state.fonts, prompts,
            progress, state.stamp,     state.screen,   state.locale};
}

// The newest backup has no number; the two before it are 2 and 3.
void rotateBackups(const platform::Folders &folders)
{
    const QString newest = folders.inUserData("MORVELBackup.VGL");
    const QString second = folders.inUserData("MORVELBackup2.VGL");
    const QString third = folders.inUserData("MORVELBackup3.VGL");
    if (!QFile::exists(newest))
        return;
    QFile::remove(third);
    QFile::rename(second, third);
    QFile::rename(newest, second);
}

} // namespace

FileCommands::FileCommands(ProgramState &state, platform::Prompts &prompts, surface::frmInterface &design,
                           QWidget &window)
    : m_state(state), m_prompts(prompts), m_design(design), m_window(window)
{
}

void FileCommands::mnuNew()
{
    if (m_prompts.ask(Icon::Question, ProductTitle, QStringLiteral("Do you want to clear design area ?")))
        clearDesign();
}

// What is cleared was backed up: nobody loses a design to a cancelled dialog. A backup that fails is
// reported, and the design stays.
bool FileCommands::clearDesign()
{
    const bool backedUp = platform::reportFailures(m_prompts, [this] { backUpDesign(); });
    if (backedUp)
        m_design.mnuNew_Click();
    return backedUp;
}

void FileCommands::backUpDesign()
{
    if (m_design.controls().isEmpty())
        return;
    platform::NoProgress silent;
    if (const auto backup = savedApart(SaveKind::Backup, silent)) {
        rotateBackups(m_state.folders); // only now: a backup that fails must not cost an older one
        platform::replaceFile(m_state.folders.inUserData("MORVELBackup.VGL"), *backup);
    }
}

// The layout as it was written into a folder of its own; nothing when the save was refused.
std::optional<QByteArray> FileCommands::savedApart(SaveKind kind, platform::Progress &progress)
{
    const QTemporaryDir folder(m_state.folders.inTemporary("save"));
    if (!folder.isValid())
        throw common::RunTimeError(folder.errorString());
    const QString path = folder.filePath(DefaultName);
    const auto result = layoutfile::SaveVGL(path, kind, saveContext(m_state, m_design, m_prompts, progress));
    return result == SaveResult::Written ? std::optional(platform::readFile(path)) : std::nullopt;
}

void FileCommands::mnuLoadConfig()
{
    if (m_design.controls().isEmpty()) {
        LoadProfile();
        return;
    }
    const auto option =
        m_prompts.choose(QStringLiteral("Load layout"),
                         QStringLiteral("You are about to load another layout, do you want to:"),
                         {QStringLiteral("Clear current layout, and load the new one?"),
                          QStringLiteral("Save the current one, clear current layout and load the new one?"),
                          QStringLiteral("Load the new one on-top of the current layout?"),
                          QStringLiteral("Abort, and do not load the new layout?")});
    const int chosen = option.value_or(Abort);
    if (chosen == SaveAndClearFirst)
        mnuSaveConfig();
    const bool clears = chosen == ClearFirst || chosen == SaveAndClearFirst;
    if (chosen != Abort && (!clears || clearDesign()))
        LoadProfile();
}

void FileCommands::LoadProfile()
{
    const platform::Folders &folders = m_state.folders;
    const QString path = m_prompts.openFile(
        {QStringLiteral("Load Layout"), m_lastFolder, OpenFilter, {}, [&folders](const QString &file) {
             return QImage(layoutfile::ExtractThumbnail(file, folders));
         }});
    if (path.isEmpty())
        return;
    m_lastFolder = QFileInfo(path).absolutePath();
    load(path);
}

void FileCommands::load(const QString &path)
{
    platform::reportFailures(m_prompts, [&] {
        platform::Busy busy(&m_window);
        const layoutfile::LoadContext context{m_design, m_state.catalogue, m_state.settings, m_prompts,
                                              busy,     m_state.folders,   m_state.locale};
        if (layoutfile::LoadVGL(path, context))
            m_design.setCaption(QFileInfo(path).completeBaseName());
    });
}

double FileCommands::CalculateComplexity() const
{
    double sum = 0;
    for (const controls::OverlayControl *control : m_design.controls())
        platform::skipFailures([&] { sum += control->complexity(); });
    return sum;
}

void FileCommands::mnuPrdCPULoad()
{
    const QString load = QStringLiteral("%1%").arg(controls::shownLoad(CalculateComplexity()));
    m_prompts.message(Icon::Information, QStringLiteral("Predictive CPU load - ") + load,
                      QStringLiteral("Predictive CPU load on hardware device - ") + load +
                          QStringLiteral("\n\n\n"
                                         "CPU load < 10%                       - Good\n\n"
                                         "10% <= CPU load <= 15%     - Average\n\n"
                                         "15% < CPU load <= 20%        - High (Overload)\n\n"
                                         "20% < CPU load                       - Extremely High (Overload)"));
}

bool FileCommands::passesComplexityGate()
{
    const auto question = controls::overloadQuestion(controls::shownLoad(CalculateComplexity()));
    return !question || m_prompts.ask(Icon::Warning, ProductTitle, *question);
}

void FileCommands::mnuSaveConfig()
{
    if (!passesComplexityGate())
        return;
    const QString path =
        m_prompts.saveFile({QStringLiteral("Save Layout"), m_lastFolder, SaveFilter, DefaultName, {}});
    if (path.isEmpty())
        return;
    m_lastFolder = QFileInfo(path).absolutePath();
    for (const auto &question : {longNameQuestion(path), recorderNameQuestion(path, &isVolumeRoot)}) {
        if (question && !m_prompts.ask(Icon::Information, ProductTitle, *question))
            return;
    }
    if (save(path))
        m_design.setCaption(QFileInfo(path).completeBaseName());
}

// The chosen path only ever receives a whole file.
bool FileCommands::save(const QString &path)
{
    bool written = false;
    platform::reportFailures(m_prompts, [&] {
        platform::Busy busy(&m_window);
        if (const auto layout = savedApart(SaveKind::Command, busy)) {
            platform::replaceFile(path, *layout);
            written = true;
        }
    });
    return written;
}

void FileCommands::saveWorkspace()
{
    platform::reportFailures(m_prompts, [this] {
        platform::Busy busy(&m_window);
        const QString workspace = m_state.folders.workspaceFile();
        QByteArray previous;
        platform::skipFailures([&] { previous = platform::readFile(workspace); });
        const auto result = layoutfile::SaveVGL(workspace, SaveKind::Workspace,
                                                saveContext(m_state, m_design, m_prompts, busy));
        if (result == SaveResult::Refused)
            backUpDesign();
        if (result == SaveResult::Written && !previous.isEmpty())
            platform::replaceFile(m_state.folders.inUserData("MORVELWorkspace.bak"), previous);
    });
}

} // namespace shell
