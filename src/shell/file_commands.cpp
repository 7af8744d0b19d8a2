#include "shell/file_commands.h"

#include "controls/complexity.h"
#include "controls/overlay_control.h"
#include "layoutfile/modLoadVGLFiles.h"
#include "layoutfile/modSaveVGLFiles.h"
#include "platform/desktop/busy.h"
#include "platform/file_replace.h"
#include "platform/guards.h"
#include "shell/kept_designs.h"
#include "shell/save_rules.h"

#include <QFile>
#include <QFileInfo>

namespace shell {

using namespace Qt::StringLiterals;
using layoutfile::SaveKind;
using platform::Icon;
using platform::ProductTitle;

namespace {

const QString OpenFilter = u"VGL files|*.VGL"_s;
const QString SaveFilter = u"VGL Files(*.VGL)|*.VGL"_s;

enum LoadOption { ClearFirst, SaveAndClearFirst, OnTop, Abort };

} // namespace

FileCommands::FileCommands(ProgramState &state, platform::Prompts &prompts, surface::frmInterface &design,
                           QWidget &window)
    : m_state(state), m_prompts(prompts), m_design(design), m_window(window), m_used(state.folders)
{
}

void FileCommands::mnuNew()
{
    if (m_prompts.ask(Icon::Question, ProductTitle, u"Do you want to clear design area ?"_s))
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
    platform::NoProgress silent;
    if (const auto layout = layoutBytes(SaveKind::Backup, m_prompts, silent))
        platform::reportStanding(m_prompts, m_state.folders.GetAppDataFolder(),
                                 keepAsBackup(layout->file, m_state.folders));
}

// Nothing when the save was refused, which is shown.
std::optional<layoutfile::LayoutBytes> FileCommands::layoutBytes(SaveKind kind, platform::Prompts &prompts,
                                                                 platform::Progress &progress)
{
    auto made =
        layoutfile::layoutBytes(kind, {m_design, m_state.catalogue, m_state.settings, m_state.fonts, prompts,
                                       progress, m_state.stamp, m_state.screen, m_state.locale});
    if (!made.refusal.isEmpty())
        prompts.message(Icon::Critical, ProductTitle, made.refusal);
    return made.file.isEmpty() ? std::nullopt : std::optional(std::move(made));
}

// Asks what becomes of the design when another layout is opened. False when none is to be.
bool FileCommands::makeRoom()
{
    if (m_design.controls().isEmpty())
        return true;
    const auto option = m_prompts.choose(
        u"Load layout"_s, u"You are about to load another layout, do you want to:"_s,
        {u"Clear current layout, and load the new one?"_s,
         u"Save the current one, clear current layout and load the new one?"_s,
         u"Load the new one on-top of the current layout?"_s, u"Abort, and do not load the new layout?"_s});
    const int chosen = option.value_or(Abort);
    if (chosen == SaveAndClearFirst)
        mnuSaveConfig();
    const bool clears = chosen == ClearFirst || chosen == SaveAndClearFirst;
    return chosen != Abort && (!clears || clearDesign());
}

void FileCommands::mnuLoadConfig()
{
    if (makeRoom())
        LoadProfile();
}

void FileCommands::open(const QString &path)
{
    if (makeRoom())
        load(path);
}

void FileCommands::openRecent(qsizetype index)
{
    const QString path = m_used.recent().value(index);
    if (platform::FileExists(path)) {
        open(path);
        return;
    }
    m_prompts.message(Icon::Information, ProductTitle,
                      u"The layout\n%1\ncannot be found. It is taken off the list."_s.arg(path));
    m_used.remove(path);
}

// Empty when the user cancels.
QString FileCommands::pickLayout(const QString &title, const QString &folder)
{
    return m_prompts.openFile({title, folder, OpenFilter, {}, [this](const QString &file) {
                                   return QImage(layoutfile::ExtractThumbnail(file, m_state.folders));
                               }});
}

void FileCommands::LoadProfile()
{
    const QString path = pickLayout(u"Load Layout"_s, m_used.folder());
    if (!path.isEmpty())
        load(path);
}

void FileCommands::mnuLoadFactoryLayout()
{
    const QString path = pickLayout(u"Load factory layouts"_s, m_state.folders.exampleLayouts());
    if (!path.isEmpty() && clearDesign())
        load(path);
}

bool FileCommands::load(const QString &path)
{
    m_used.choose(path);
    bool isLoaded = false;
    platform::reportFailures(m_prompts, [&] {
        platform::Busy busy(&m_window);
        const layoutfile::LoadContext context{
            m_design,        m_state.catalogue, m_state.settings, m_prompts,     busy,
            m_state.folders, m_state.stamp,     m_state.screen,   m_state.locale};
        isLoaded = layoutfile::LoadVGL(path, context);
        if (isLoaded)
            name(path);
    });
    return isLoaded;
}

// The design is what this file holds.
void FileCommands::name(const QString &path)
{
    m_used.add(path);
    m_design.setCaption(QFileInfo(path).completeBaseName());
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
    const QString load = u"%1%"_s.arg(controls::shownLoad(CalculateComplexity()));
    m_prompts.message(Icon::Information, u"Predictive CPU load - "_s + load,
                      u"Predictive CPU load on hardware device - "_s + load +
                          u"\n\n\n"
                          "CPU load < 10%                       - Good\n\n"
                          "10% <= CPU load <= 15%     - Average\n\n"
                          "15% < CPU load <= 20%        - High (Overload)\n\n"
                          "20% < CPU load                       - Extremely High (Overload)"_s);
}

bool FileCommands::passesComplexityGate()
{
    const auto question = controls::overloadQuestion(controls::shownLoad(CalculateComplexity()));
    return !question || m_prompts.ask(Icon::Warning, ProductTitle, *question);
}

bool FileCommands::mayLoseVariables()
{
    return !m_state.catalogue.definitionsLost ||
           m_prompts.ask(Icon::Warning, ProductTitle,
                         u"No variable definitions are loaded, the layout will hold none. Do you "
                         "want to continue ?"_s);
}

void FileCommands::mnuSaveConfig()
{
    if (!mayLoseVariables() || !passesComplexityGate())
        return;
    const QString path =
        m_prompts.saveFile({u"Save Layout"_s, m_used.folder(), SaveFilter, RecorderFileName, {}});
    if (path.isEmpty())
        return;
    m_used.choose(path);
    for (const auto &question : {longNameQuestion(path), recorderNameQuestion(path, &isVolumeRoot)}) {
        if (question && !m_prompts.ask(Icon::Information, ProductTitle, *question))
            return;
    }
    if (save(path))
        name(path);
}

bool FileCommands::save(const QString &path)
{
    std::optional<layoutfile::LayoutBytes> written;
    platform::reportFailures(m_prompts, [&] {
        platform::Busy busy(&m_window);
        if (auto layout = layoutBytes(SaveKind::Command, m_prompts, busy)) {
            const QString keepIn = m_state.folders.GetAppDataFolder();
            platform::reportStanding(m_prompts, path, platform::replaceFile(path, layout->file, keepIn));
            written = std::move(layout);
        }
    });
    if (const auto note = replacedFontsNote(written ? written->replacedFonts : QStringList()))
        m_prompts.message(Icon::Warning, ProductTitle, *note);
    return written.has_value();
}

void FileCommands::saveRecovery()
{
    const QString path = m_state.folders.recoveryFile();
    platform::NoProgress silent;
    if (const auto layout = layoutBytes(SaveKind::Recovery, m_prompts, silent))
        platform::replaceFile(path, layout->file, platform::Flush::None);
    else
        removeRecovery();
}

void FileCommands::removeRecovery() { QFile::remove(m_state.folders.recoveryFile()); }

// What the next start offers. A design that is refused, or that has lost its variables, is a backup.
platform::Standing FileCommands::keepDesign(platform::Prompts &prompts, QByteArray &layout)
{
    platform::Busy busy(&m_window);
    std::optional<layoutfile::LayoutBytes> made;
    if (!m_state.catalogue.definitionsLost)
        made = layoutBytes(SaveKind::Workspace, prompts, busy);
    const bool isWorkspace = made.has_value();
    if (!made)
        made = layoutBytes(SaveKind::Backup, prompts, busy);
    layout = made ? made->file : QByteArray();
    if (layout.isEmpty())
        return platform::Standing::Confirmed;
    const platform::Folders &folders = m_state.folders;
    const auto standing = isWorkspace ? keepAsWorkspace(layout, folders) : keepAsBackup(layout, folders);
    platform::reportStanding(prompts, folders.workspaceFile(), standing);
    return standing;
}

Parting FileCommands::saveWorkspace(Leaving leaving)
{
    platform::SilentPrompts silent;
    const bool sessionEnds = leaving == Leaving::SessionEnds;
    platform::Prompts &prompts = sessionEnds ? silent : m_prompts;
    QByteArray layout;
    auto standing = platform::Standing::NotConfirmed;
    auto failure = platform::failureOf([&] { standing = keepDesign(prompts, layout); });
    if (!failure)
        return standing == platform::Standing::Confirmed ? Parting::DesignIsSafe : Parting::DesignAtRisk;
    const QString place = layout.isEmpty() ? QString() : keepAnywhere(layout, m_state.folders);
    if (!place.isEmpty())
        failure->append(u"\nThe design is kept in\n"_s + place);
    platform::reportFailure(prompts, *failure);
    if (sessionEnds)
        return Parting::DesignAtRisk; // nobody has read where it is
    if (!place.isEmpty())
        return Parting::DesignIsSafe;
    const bool leaves = prompts.ask(Icon::Warning, ProductTitle,
                                    u"The layout could not be saved. Do you want to leave anyway?"_s);
    return leaves ? Parting::DesignAtRisk : Parting::Stays;
}

} // namespace shell
