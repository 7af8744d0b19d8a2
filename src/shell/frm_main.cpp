#include "shell/frm_main.h"

#include "controls/overlay_control.h"
#include "platform/guards.h"
#include "shell/frm_start_splash.h"
#include "shell/version.h"
#include "surface/panel_area.h"
#include "variables/edit_cycle.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

namespace shell {

using recorder::EncodePattern;
using recorder::VideoStandard;
using surface::PanelId;

// One command: where it stands, how it looks, what it does. An empty name is a separator.
struct CommandRow
{
    const char *menu; // name of the menu or toolbar it stands in
    const char *name;
    const char *caption;
    const char *icon; // in the resources; empty for none
    const char *shortcut;
    bool checkable;
    void (*run)(frmMain &);
};

struct CommandTable
{
    template <PanelId Id>
    static void togglePanel(frmMain &w)
    {
        surface::PanelArea &panels = w.m_design->panels();
        panels.setPanelVisible(Id, !panels.isPanelVisible(Id));
    }

    static constexpr CommandRow Rows[] = {
        {"mnuFile", "mnuNew", "&New Layout", "toolbar/new", "Ctrl+N", false,
         [](frmMain &w) { w.m_files.mnuNew(); }},
        {"mnuFile", "mnuLoadConfig", "&Load Layout", "toolbar/open", "Ctrl+O", false,
         [](frmMain &w) { w.m_files.mnuLoadConfig(); }},
        {"mnuFile", "mnuSaveConfig", "&Save Layout", "toolbar/save", "Ctrl+S", false,
         [](frmMain &w) { w.m_files.mnuSaveConfig(); }},
        {"mnuFile", "", "", "", "", false, nullptr},
        {"mnuFile", "mnuLoadVarInfo", "Load &Variable Information", "", "", false,
         [](frmMain &w) { w.m_variables.mnuLoadVarInfo(); }},
        {"mnuFile", "mnuSaveVarInfo", "Save Variable &Information", "", "", false,
         [](frmMain &w) { w.m_variables.mnuSaveVarInfo(); }},
        {"mnuFile", "mnuRestoreDefaultVar", "&Restore Default Variable Information", "", "", false,
         [](frmMain &w) { w.m_variables.mnuRestoreDefaultVar(); }},
        {"mnuFile", "", "", "", "", false, nullptr},
        {"mnuFile", "mnuPrdCPULoad", "Calculate Predictive CPU Load", "menu/load_estimate", "", false,
         [](frmMain &w) { w.m_files.mnuPrdCPULoad(); }},
        {"mnuFile", "", "", "", "", false, nullptr},
        {"mnuFile", "mnuExit", "E&xit", "menu/exit", "Ctrl+Q", false, [](frmMain &w) { w.close(); }},
        {"mnuView", "mnuPAL", "PAL", "", "", true,
         [](frmMain &w) { w.m_design->setVideoStandard(VideoStandard::Pal); }},
        {"mnuView", "mnuNTSC", "NTSC", "", "", true,
         [](frmMain &w) { w.m_design->setVideoStandard(VideoStandard::Ntsc); }},
        {"mnuView", "", "", "", "", false, nullptr},
        {"mnuView", "mnuPanelDesign", "&Design Panel", "", "Ctrl+1", true, &togglePanel<PanelId::Design>},
        {"mnuView", "mnuPanelLibrary", "&Control Library Panel", "", "Ctrl+2", true,
         &togglePanel<PanelId::Library>},
        {"mnuView", "mnuPanelFunctions", "&Variables Panel", "", "Ctrl+3", true,
         &togglePanel<PanelId::Functions>},
        {"mnuView", "", "", "", "", false, nullptr},
        {"mnuView", "mnuNextPanel", "&Next Panel", "", "F6", false,
         [](frmMain &w) { w.m_design->panels().stepPanel(true); }},
        {"mnuView", "mnuPreviousPanel", "&Previous Panel", "", "Shift+F6", false,
         [](frmMain &w) { w.m_design->panels().stepPanel(false); }},
        {"mnuView", "mnuResetPanels", "&Reset Panels", "menu/panels", "", false,
         [](frmMain &w) { w.m_design->resetPanels(); }},
        {"mnuEncodePattern", "mnuI", "I", "", "", true,
         [](frmMain &w) { w.m_state.settings.encodePattern = EncodePattern::I; }},
        {"mnuEncodePattern", "mnuIP", "IP", "", "", true,
         [](frmMain &w) { w.m_state.settings.encodePattern = EncodePattern::IP; }},
        {"mnuEncodePattern", "mnuIPB", "IPB", "", "", true,
         [](frmMain &w) { w.m_state.settings.encodePattern = EncodePattern::IPB; }},
        {"mnuHelp", "mnuAbout", "About Us", "menu/about", "", false,
         [](frmMain &w) { frmStartSplash(w.m_state.folders, &w).exec(); }},
        {"Toolbar", "cmdLeft", "Nudge left", "toolbar/left", "", false,
         [](frmMain &w) { w.sendKey(Qt::Key_Left); }},
        {"Toolbar", "cmdUp", "Nudge up", "toolbar/up", "", false, [](frmMain &w) { w.sendKey(Qt::Key_Up); }},
        {"Toolbar", "cmdDown", "Nudge down", "toolbar/down", "", false,
         [](frmMain &w) { w.sendKey(Qt::Key_Down); }},
        {"Toolbar", "cmdRight", "Nudge right", "toolbar/right", "", false,
         [](frmMain &w) { w.sendKey(Qt::Key_Right); }},
        {"Toolbar", "", "", "", "", false, nullptr},
        {"Toolbar", "cmdPrevious", "Previous control", "toolbar/previous", "", false,
         [](frmMain &w) { w.m_design->stepControl(false); }},
        {"Toolbar", "cmdNext", "Next control", "toolbar/next", "", false,
         [](frmMain &w) { w.m_design->stepControl(true); }},
        {"Toolbar", "", "", "", "", false, nullptr},
        {"Toolbar", "cmdEnter", "Properties of the selected control", "toolbar/properties", "", false,
         [](frmMain &w) { w.sendKey(Qt::Key_Return); }},
        {"mnuDropDown3", "mnuDelete_C", "&Delete", "menu/delete", "", false,
         [](frmMain &w) { w.sendKey(Qt::Key_Delete); }},
        {"mnuDropDown3", "mnuProperties_C", "P&roperties", "toolbar/properties", "", false,
         [](frmMain &w) { w.sendKey(Qt::Key_Return); }},
    };
};

namespace {

QIcon resourceIcon(const QString &name)
{
    return name.isEmpty() ? QIcon() : QIcon(QStringLiteral(":/%1.png").arg(name));
}

} // namespace

frmMain::frmMain(ProgramState &state, platform::Prompts &prompts)
    : m_state(state), m_prompts(prompts),
      m_design(new surface::frmInterface({state.catalogue, state.settings, state.startMessages, state.folders,
                                          state.fonts, prompts, state.locale, state.screen})),
      m_files(state, prompts, *m_design, *this), m_variables(state, prompts, *m_design)
{
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(platform::ProductTitle + QStringLiteral(" - Version ") + programVersion());
    setMinimumSize(640, 480);
    makeMenus();
    makeToolbar();
    makeStatusBar();
    makePopups();
    setCentralWidget(m_design);
    connect(m_design, &surface::frmInterface::positionShown, m_position, &QLabel::setText);
    connect(m_design, &surface::frmInterface::layoutChanged, this, &frmMain::refreshFromState);
    for (const auto change : {&surface::frmInterface::designChanged, &surface::frmInterface::layoutChanged})
        connect(m_design, change, &m_recovery, &Recovery::noteChange);
    connect(&m_design->panels(), &surface::PanelArea::visibilityChanged, this, &frmMain::refreshFromState);
    refreshFromState();
}

QAction *frmMain::makeAction(const CommandRow &row)
{
    auto *made = new QAction(this);
    if (!*row.name) {
        made->setSeparator(true);
        return made;
    }
    made->setObjectName(QLatin1String(row.name));
    made->setText(QLatin1String(row.caption));
    made->setIcon(resourceIcon(QLatin1String(row.icon)));
    made->setShortcut(QKeySequence(QLatin1String(row.shortcut)));
    made->setCheckable(row.checkable);
    const auto run = row.run;
    connect(made, &QAction::triggered, this, [this, run] {
        platform::reportFailures(m_prompts, [&] { run(*this); });
        refreshFromState();
        m_recovery.noteChange();
    });
    return made;
}

QAction *frmMain::action(const char *name) const { return findChild<QAction *>(QLatin1String(name)); }

void frmMain::fillAddMenu(QMenu &menu, const QString &prefix)
{
    for (const controls::Family &family : controls::families()) {
        QAction *add = menu.addAction(resourceIcon(QStringLiteral("families/") + QLatin1String(family.art)),
                                      QLatin1String(family.menuCaption));
        add->setObjectName(prefix + QLatin1String(family.menuItem).mid(3));
        add->setEnabled(family.create != nullptr);
        const controls::ControlType type = family.type;
        connect(add, &QAction::triggered, this, [this, type] {
            platform::reportFailures(m_prompts, [&] { m_design->addControlAtLastPosition(type); });
        });
    }
}

void frmMain::makeMenus()
{
    const auto fill = [this](QMenu *menu) {
        for (const CommandRow &row : CommandTable::Rows) {
            if (menu->objectName() == QLatin1String(row.menu))
                menu->addAction(makeAction(row));
        }
    };
    const auto addMenu = [this](const char *name, const char *caption) {
        QMenu *menu = menuBar()->addMenu(QLatin1String(caption));
        menu->setObjectName(QLatin1String(name));
        return menu;
    };
    fill(addMenu("mnuFile", "&File"));
    fill(addMenu("mnuView", "&View"));
    m_addControl.setTitle(QStringLiteral("&Add Control"));
    m_addControl.setObjectName(QStringLiteral("mnuAddControl"));
    fillAddMenu(m_addControl, QStringLiteral("mnu"));
    menuBar()->addMenu(&m_addControl);
    QMenu *configuration = addMenu("mnuConfiguration", "&Configuration");
    QMenu *pattern = configuration->addMenu(QStringLiteral("Encode Pattern"));
    pattern->setObjectName(QStringLiteral("mnuEncodePattern"));
    fill(pattern);
    fill(addMenu("mnuHelp", "&Help"));
}

void frmMain::makeToolbar()
{
    QToolBar *toolbar = addToolBar(QStringLiteral("Toolbar"));
    toolbar->setObjectName(QStringLiteral("Toolbar"));
    toolbar->setMovable(false);
    toolbar->setIconSize(QSize(24, 24));
    toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
    toolbar->addActions({action("mnuNew"), action("mnuLoadConfig"), action("mnuSaveConfig")});
    toolbar->addSeparator();
    for (const CommandRow &row : CommandTable::Rows) {
        if (QLatin1String(row.menu) == QLatin1String("Toolbar"))
            toolbar->addAction(makeAction(row));
    }
    setContextMenuPolicy(Qt::NoContextMenu);
}

void frmMain::makeStatusBar()
{
    m_position = new QLabel;
    m_standard = new QLabel;
    m_bitRate = new QLabel;
    m_position->setObjectName(QStringLiteral("lblPosition"));
    m_bitRate->setObjectName(QStringLiteral("lblBitRate"));
    m_position->setMinimumWidth(180);
    for (QLabel *pane : {m_position, m_standard, m_bitRate})
        pane->setContentsMargins(8, 2, 8, 2);
    statusBar()->addWidget(m_position, 1);
    statusBar()->addPermanentWidget(m_standard);
    statusBar()->addPermanentWidget(m_bitRate);
}

void frmMain::makePopups()
{
    m_canvasPopup.setObjectName(QStringLiteral("mnuDropDown"));
    fillAddMenu(*m_canvasPopup.addMenu(QStringLiteral("&Add Control")), QStringLiteral("mnuDD"));
    connect(m_design, &surface::frmInterface::canvasMenuRequested, this,
            [this](const QPoint &position) { m_canvasPopup.popup(position); });
    m_controlPopup.setObjectName(QStringLiteral("mnuDropDown3"));
    for (const CommandRow &row : CommandTable::Rows) {
        if (m_controlPopup.objectName() == QLatin1String(row.menu))
            m_controlPopup.addAction(makeAction(row));
    }
    connect(m_design, &surface::frmInterface::controlMenuRequested, this,
            [this](const QPoint &position) { m_controlPopup.popup(position); });
}

void frmMain::refreshFromState()
{
    const recorder::RecorderSettings &settings = m_state.settings;
    action("mnuPAL")->setChecked(settings.VideoType == VideoStandard::Pal);
    action("mnuNTSC")->setChecked(settings.VideoType == VideoStandard::Ntsc);
    action("mnuPanelDesign")->setChecked(m_design->panels().isPanelVisible(PanelId::Design));
    action("mnuPanelLibrary")->setChecked(m_design->panels().isPanelVisible(PanelId::Library));
    action("mnuPanelFunctions")->setChecked(m_design->panels().isPanelVisible(PanelId::Functions));
    action("mnuI")->setChecked(settings.encodePattern == EncodePattern::I);
    action("mnuIP")->setChecked(settings.encodePattern == EncodePattern::IP);
    action("mnuIPB")->setChecked(settings.encodePattern == EncodePattern::IPB);
    m_standard->setText(settings.VideoType == VideoStandard::Pal ? QStringLiteral("PAL 720 x 576")
                                                                 : QStringLiteral("NTSC 720 x 480"));
    m_bitRate->setText(recorder::bitRateCaption(settings.CurrentBitRate));
    m_bitRate->setToolTip(m_bitRate->text());
}

// Acts on the current control as its keys do, wherever the focus is.
void frmMain::sendKey(Qt::Key key)
{
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier);
        if (controls::OverlayControl *target = m_design->currentControl())
            QApplication::sendEvent(target, &event);
    }
}

void frmMain::closeEvent(QCloseEvent *event)
{
    platform::SilentPrompts silent;
    platform::Prompts &prompts = m_state.sessionEnds ? silent : m_prompts;
    variables::writePendingEdits(m_state.catalogue, m_state.folders, m_state.locale, prompts);
    if (!m_files.saveWorkspace(m_state.sessionEnds ? Leaving::SessionEnds : Leaving::ByCommand)) {
        event->ignore();
        return;
    }
    platform::reportFailures(prompts, [this] {
        m_design->saveGeometry();
        m_files.keepLastFolder();
    });
    platform::wipeFiles(m_state.folders.cache, QStringLiteral("*.bmp"));
    event->accept();
}

} // namespace shell
