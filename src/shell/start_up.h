#pragma once

#include "shell/command_line.h"
#include "shell/frm_main.h"

#include <QElapsedTimer>

#include <memory>
#include <optional>

namespace shell {

class frmStartSplash;

// Where the raw material of a start comes from; tests fill it by hand.
struct StartUpInput
{
    platform::Folders folders;
    platform::NumberLocale locale;
    platform::Stamp stamp;
    QStringList arguments; // after the program's name
};

// The load of the main window, step by step in its order.
class StartUp
{
public:
    StartUp(const StartUpInput &input, platform::Prompts &prompts);
    ~StartUp();

    // False when a file that the program cannot do without is missing; the message has been shown.
    bool run();
    frmMain *window() { return m_window.get(); }
    bool &sessionEnds() { return m_state.sessionEnds; }

private:
    void readSettings();
    void prepareFolders();
    bool loadVariables();
    void replaceLostDefinitions();
    bool loadMessages();
    bool checkExpressions();
    void missingFile(const QString &name);
    void showWindows();
    void showSplashWhenLate();
    void chooseFirstLayout();
    bool recoverDesign(bool mayAsk);
    void tellOfKeptFiles();
    // Whether the layout was loaded; nothing when there is none or the user does not want it.
    std::optional<bool> offerLayout(const QString &path, const QString &question);

    StartUpInput m_input;
    platform::Prompts &m_prompts;
    CommandLine m_commandLine;
    ProgramState m_state;
    std::unique_ptr<frmMain> m_window;
    std::unique_ptr<frmStartSplash> m_splash;
    QElapsedTimer m_since;
    bool m_mayReplaceRecovery = true; // nothing in it that lies nowhere else
};

} // namespace shell
