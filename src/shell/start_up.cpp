#include "shell/start_up.h"

#include "controls/picture_copies.h"
#include "platform/desktop/busy.h"
#include "platform/desktop/first_paint.h"
#include "platform/file_replace.h"
#include "platform/guards.h"
#include "platform/settings_keys.h"
#include "shell/definitions.h"
#include "shell/frm_start_splash.h"
#include "shell/kept_designs.h"
#include "variables/definition_file.h"
#include "variables/expression/compiler.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QScreen>

namespace shell {

using namespace Qt::StringLiterals;
using platform::FileExists;
using platform::Icon;
using recorder::VideoStandard;

namespace {

const QString LastLayout = u"Do you want to load last layout ?"_s;

} // namespace

StartUp::StartUp(const StartUpInput &input, platform::Prompts &prompts) : m_input(input), m_prompts(prompts)
{
    m_since.start();
    m_state.folders = input.folders;
    m_state.locale = input.locale;
    m_state.stamp = input.stamp;
}

StartUp::~StartUp() = default;

bool StartUp::run()
{
    m_commandLine = parseCommandLine(rawCommandLine(m_input.arguments),
                                     [](const QString &path) { return FileExists(path) != 0; });
    readSettings();
    prepareFolders();
    const QString ownIcon = m_state.folders.program + u"User.ico"_s;
    QApplication::setWindowIcon(QIcon(FileExists(ownIcon) ? ownIcon : u":/icon.png"_s));
    if (!loadVariables() || !loadMessages() || !checkExpressions())
        return false;
    showWindows();
    tellOfKeptFiles();
    chooseFirstLayout();
    if (m_mayReplaceRecovery)
        m_window->recovery().begin();
    return true;
}

void StartUp::readSettings()
{
    const platform::SettingsFile file(m_state.folders.ConfigFile());
    const VideoStandard stored =
        platform::keys::VideoType.read(file) == 0 ? VideoStandard::Ntsc : VideoStandard::Pal;
    m_state.settings.VideoType = m_commandLine.videoOverride.value_or(stored);
}

void StartUp::prepareFolders()
{
    QDir().mkpath(m_state.folders.pictureFolder());
    QDir().mkpath(m_state.folders.FontFolder());
    for (const QString &folder : {m_state.folders.GetAppDataFolder(), m_state.folders.pictureFolder(),
                                  m_state.folders.FontFolder(), m_state.folders.temporary})
        platform::removeStagedFiles(folder);
    controls::removeUnusedCopies(m_state.folders);
}

void StartUp::missingFile(const QString &name)
{
    m_prompts.message(Icon::Critical, u"File not found"_s,
                      u"An important system file cannot be found, please uninstall and re-install\n"_s +
                          name);
}

bool StartUp::loadVariables()
{
    const QString path = m_state.folders.variablesFile();
    if (!FileExists(path)) {
        missingFile(QFileInfo(path).fileName());
        return false;
    }
    m_state.catalogue.definitionsLost = true; // until they are loaded
    platform::reportFailures(m_prompts, [&] {
        if (variables::loadDefinitions(platform::readFile(path), m_state.catalogue) ==
            variables::DefinitionStatus::Corrupted)
            m_prompts.message(Icon::None, platform::ProductTitle, variables::CorruptedDefinitions);
    });
    if (m_state.catalogue.definitionsLost)
        replaceLostDefinitions();
    return true;
}

// The program goes on with what it has, or with the shipped definitions.
void StartUp::replaceLostDefinitions()
{
    if (platform::reportFailures(m_prompts, [&] { keepDamagedDefinitions(m_state.folders); }))
        platform::reportFailures(m_prompts, [&] { restoreDefaultDefinitions(m_state, m_prompts, nullptr); });
}

bool StartUp::loadMessages()
{
    const QString path = m_state.folders.MessagesFile();
    if (!FileExists(path)) {
        missingFile(path);
        return false;
    }
    platform::reportFailures(m_prompts, [&] {
        recorder::readMessageTable(platform::readFile(path), m_state.settings.MessageTable);
    });
    m_state.startMessages = m_state.settings.MessageTable;
    return true;
}

bool StartUp::checkExpressions()
{
    constexpr int OldestLayer = 3;
    if (variables::expression::expressionLayerVersion() >= OldestLayer)
        return true;
    m_prompts.message(Icon::Critical, platform::ProductTitle,
                      u"System can't find required maths parser DLL,please uninstall and re-install"_s);
    return false;
}

void StartUp::showWindows()
{
    m_window = std::make_unique<frmMain>(m_state, m_prompts);
    m_window->files().used().read();
    showSplashWhenLate();
    m_window->design().load();
    m_window->refreshFromState();
    showSplashWhenLate();
    m_window->resize(m_window->screen()->availableSize()); // boxes open in its middle before it is maximised
    m_window->showMaximized();
    platform::wipeFiles(m_state.folders.cache, u"*.bmp"_s);
    platform::afterFirstPaint(*m_window, [window = m_window.get()] {
        platform::Busy busy(window, platform::Busy::Hourglass::WhenItLasts);
        window->design().GenerateIcons(busy);
    });
    m_window->activateWindow();
    m_splash.reset();
}

// A quick start does not flash a picture that nobody could look at.
void StartUp::showSplashWhenLate()
{
    if (m_splash || m_since.elapsed() < platform::Busy::Lasts)
        return;
    m_splash = std::make_unique<frmStartSplash>(m_state.folders, nullptr);
    m_splash->show();
    m_splash->repaint();
    QApplication::processEvents();
}

void StartUp::chooseFirstLayout()
{
    const platform::Folders &folders = m_state.folders;
    const bool isNamed = !m_commandLine.layoutToOpen.isEmpty();
    if (recoverDesign(!isNamed))
        return;
    if (isNamed)
        m_window->files().load(m_commandLine.layoutToOpen);
    else if (!offerLayout(folders.workspaceFile(), LastLayout).has_value())
        offerLayout(folders.defaultLayoutFile(), u"Do you want to load default layout ?"_s);
}

// True when the user wanted the design of a run that did not come to its end. Where it is not loaded, or
// brings no variables, it is a backup from now on.
bool StartUp::recoverDesign(bool mayAsk)
{
    const QString path = m_state.folders.recoveryFile();
    const QByteArray left = leftToRecover(m_state.folders);
    if (left.isEmpty())
        return false;
    const auto isLoaded = mayAsk ? offerLayout(path, LastLayout) : std::nullopt;
    if (!isLoaded.value_or(false) || m_state.catalogue.definitionsLost) {
        m_mayReplaceRecovery = platform::reportFailures(m_prompts, [&] {
            keepAsBackup(left, m_state.folders);
            QFile::remove(path);
        });
    }
    return isLoaded.has_value();
}

std::optional<bool> StartUp::offerLayout(const QString &path, const QString &question)
{
    if (!FileExists(path) || !m_prompts.ask(Icon::Question, platform::ProductTitle, question))
        return std::nullopt;
    return m_window->files().load(path);
}

// A save that was killed while it copied over has left the old bytes, and nobody has been told of them.
void StartUp::tellOfKeptFiles()
{
    const QDir folder(m_state.folders.GetAppDataFolder());
    for (const QString &name : folder.entryList({platform::KeptPrefix + "*-*"_L1}, QDir::Files)) {
        const QString told = platform::unusedPath(folder.filePath(u"old-"_s + name));
        platform::skipFailures([&] {
            platform::moveFile(folder.filePath(name), told);
            m_prompts.message(Icon::Warning, platform::ProductTitle,
                              u"A save did not come to its end. What the file held before is kept in\n"_s +
                                  told);
        });
    }
}

} // namespace shell
