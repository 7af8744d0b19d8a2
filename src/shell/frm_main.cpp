#include "shell/frm_main.h"

#include "controls/families.h"
#include "platform/desktop/art_icon.h"
#include "platform/guards.h"
#include "recorder/bit_rate.h"
#include "shell/version.h"
#include "surface/canvas_rules.h"
#include "surface/canvas_view.h"
#include "surface/panel_area.h"
#include "variables/edit_cycle.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QStatusBar>
#include <QToolBar>

namespace shell {

using namespace Qt::StringLiterals;

namespace {

// The one layout that is dropped; empty when it is anything else.
QString droppedLayout(const QMimeData &dropped)
{
    const QList<QUrl> files = dropped.urls();
    const QString path = files.size() == 1 ? files.first().toLocalFile() : QString();
    return path.endsWith(".VGL"_L1, Qt::CaseInsensitive) ? path : QString();
}

} // namespace

frmMain::frmMain(ProgramState &state, platform::Prompts &prompts)
    : m_state(state), m_prompts(prompts),
      m_design(new surface::frmInterface({state.catalogue, state.settings, state.startMessages, state.folders,
                                          state.fonts, state.clipboard, prompts, state.locale, state.screen,
                                          state.stamp})),
      m_files(state, prompts, *m_design, *this), m_variables(state, prompts, *m_design)
{
    setObjectName(u"frmMain"_s);
    setWindowTitle(platform::ProductTitle + u" - Version "_s + programVersion());
    setMinimumSize(640, 480);
    setAcceptDrops(true);
    makeActions();
    makeMenus();
    makeToolbar();
    makeStatusBar();
    makePopups();
    setCentralWidget(m_design);
    m_design->canvas().setFocus(); // the keys work on the design from the start
    connect(m_design, &surface::frmInterface::positionShown, m_position, &LiveLabel::setText);
    connect(m_design, &surface::frmInterface::currentShown, m_current, &LiveLabel::setText);
    connect(m_design, &surface::frmInterface::layoutChanged, this, &frmMain::refreshFromState);
    connect(m_design, &surface::frmInterface::viewChanged, this, &frmMain::refreshFromState);
    for (const auto change : {&surface::frmInterface::designChanged, &surface::frmInterface::layoutChanged})
        connect(m_design, change, &m_recovery, &Recovery::noteChange);
    for (const auto change :
         {&surface::frmInterface::controlsChanged, &surface::frmInterface::selectionChanged})
        connect(m_design, change, this, &frmMain::refreshFromState);
    connect(&m_design->panels(), &surface::PanelArea::visibilityChanged, this, &frmMain::refreshFromState);
    refreshFromState();
}

void frmMain::makeActions()
{
    for (const Command &command : commands()) {
        auto *action = new QAction(this);
        m_actions.append(action);
        action->setSeparator(!command.run && !command.opens);
        action->setObjectName(QLatin1String(command.name));
        action->setText(QLatin1String(command.caption));
        if (*command.icon)
            action->setIcon(platform::artIcon(QLatin1String(command.icon)));
        action->setShortcuts(QKeySequence::listFromString(QLatin1String(command.shortcut)));
        if (command.places & CanvasPopup)
            action->setShortcutContext(Qt::WidgetShortcut);
        action->setCheckable(command.isChecked != nullptr);
        if (command.opens)
            action->setMenu(new QMenu(this));
        if (command.run) {
            connect(action, &QAction::triggered, this,
                    [this, run = command.run] { runCommand([&] { run(*this); }); });
        }
    }
    for (std::size_t i = 0; i < commands().size(); ++i) {
        if (commands()[i].opens)
            fill(*m_actions[static_cast<qsizetype>(i)]->menu(), commands()[i].opens);
    }
}

void frmMain::runCommand(const std::function<void()> &command)
{
    platform::reportFailures(m_prompts, command);
    refreshFromState();
    m_recovery.noteChange();
}

void frmMain::fill(QWidget &menu, unsigned place)
{
    for (std::size_t i = 0; i < commands().size(); ++i) {
        if (commands()[i].places & place)
            menu.addAction(m_actions[static_cast<qsizetype>(i)]);
    }
}

void frmMain::fillAddMenu(QMenu &menu, const QString &prefix)
{
    for (const controls::Family &family : controls::families()) {
        QAction *add = menu.addAction(platform::artIcon(u"families/"_s + QLatin1String(family.art)),
                                      QLatin1String(family.menuCaption));
        add->setObjectName(prefix + QLatin1String(family.menuItem).mid(3));
        const controls::ControlType type = family.type;
        connect(add, &QAction::triggered, this,
                [this, type] { runCommand([&] { m_design->addControlAtLastPosition(type); }); });
    }
}

QMenu *frmMain::addMenu(QMenu *menu, const char *name, unsigned place)
{
    menu->setObjectName(QLatin1String(name));
    fill(*menu, place);
    menuBar()->addMenu(menu);
    m_menus.emplace_back(menu, place);
    return menu;
}

void frmMain::makeMenus()
{
    QMenuBar *bar = menuBar();
    addMenu(new QMenu(u"&File"_s, bar), "mnuFile", FileMenu);
    addMenu(new QMenu(u"&View"_s, bar), "mnuView", ViewMenu);
    fillAddMenu(*addMenu(new QMenu(u"&Add Control"_s, bar), "mnuAddControl", 0), u"mnu"_s);
    addMenu(new QMenu(u"&Configuration"_s, bar), "mnuConfiguration", ConfigurationMenu);
    addMenu(new QMenu(u"&Tools"_s, bar), "mnuTools", ToolsMenu)->setToolTipsVisible(true);
    addMenu(new QMenu(u"&Help"_s, bar), "mnuHelp", HelpMenu)->setToolTipsVisible(true);
}

void frmMain::makeToolbar()
{
    QToolBar *toolbar = addToolBar(u"Toolbar"_s);
    toolbar->setObjectName(u"Toolbar"_s);
    toolbar->setMovable(false);
    toolbar->setIconSize(QSize(24, 24));
    toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
    fill(*toolbar, Toolbar);
    setContextMenuPolicy(Qt::NoContextMenu);
}

void frmMain::makeStatusBar()
{
    m_position = new LiveLabel;
    m_current = new LiveLabel;
    m_zoom = new QLabel;
    m_standard = new QLabel;
    m_bitRate = new QLabel;
    m_position->setObjectName(u"lblPosition"_s);
    m_bitRate->setObjectName(u"lblBitRate"_s);
    m_current->setObjectName(u"lblCurrent"_s);
    m_zoom->setObjectName(u"lblZoom"_s);
    for (QWidget *pane :
         std::initializer_list<QWidget *>{m_position, m_current, m_zoom, m_standard, m_bitRate})
        pane->setContentsMargins(8, 2, 8, 2);
    m_position->fix(surface::positionText({-99999, -99999}, m_state.screen));
    statusBar()->addWidget(m_position);
    statusBar()->addPermanentWidget(m_current, 1);
    statusBar()->addPermanentWidget(m_zoom);
    statusBar()->addPermanentWidget(m_standard);
    statusBar()->addPermanentWidget(m_bitRate);
    m_bitRate->setVisible(platform::personality() == platform::Personality::MORVEL);
}

template <typename Signal>
void frmMain::addPopup(QMenu &popup, const char *name, unsigned place, Signal requested)
{
    popup.setObjectName(QLatin1String(name));
    fill(popup, place);
    connect(m_design, requested, this, [&popup](const QPoint &position) { popup.popup(position); });
}

void frmMain::makePopups()
{
    using Design = surface::frmInterface;
    QMenu *add = m_canvasPopup.addMenu(u"&Add Control"_s);
    add->setObjectName(u"mnuDDAddControl"_s);
    fillAddMenu(*add, u"mnuDD"_s);
    addPopup(m_canvasPopup, "mnuDropDown", CanvasPopup, &Design::canvasMenuRequested);
    fill(m_design->canvas(), CanvasPopup);
    addPopup(m_controlPopup, "mnuDropDown3", ControlPopup, &Design::controlMenuRequested);
    connect(m_design, &Design::groupMenuRequested, this, [this](const QPoint &, bool pastes) {
        m_groupMenuPastes = pastes;
        refreshFromState(); // before it opens
    });
    addPopup(m_groupPopup, "mnuGroupControl", GroupPopup, &Design::groupMenuRequested);
    addPopup(m_libraryPopup, "mnuControl", LibraryPopup, &Design::libraryMenuRequested);
}

void frmMain::refreshFromState()
{
    const recorder::RecorderSettings &settings = m_state.settings;
    for (std::size_t i = 0; i < commands().size(); ++i) {
        const Command &command = commands()[i];
        QAction &action = *m_actions[static_cast<qsizetype>(i)];
        if (command.captionOf)
            action.setText(command.captionOf(*this));
        if (command.isChecked)
            action.setChecked(command.isChecked(*this));
        action.setEnabled((command.inPreview || !m_design->IsPlayMode()) &&
                          (!command.isEnabled || command.isEnabled(*this)));
        action.setVisible(isOffered(command, platform::personality()) &&
                          (!command.isVisible || command.isVisible(*this)));
        if (command.toolTip)
            action.setToolTip(command.toolTip(*this));
    }
    for (const auto &[menu, place] : m_menus)
        menu->setEnabled(livesInPreview(place) || !m_design->IsPlayMode());
    m_zoom->setText(u"%1 %"_s.arg(m_design->view().zoom()));
    m_standard->setText(recorder::standardCaption(settings.VideoType));
    m_bitRate->setText(recorder::bitRateCaption(settings.CurrentBitRate));
    m_bitRate->setToolTip(m_bitRate->text());
}

// Not while a dialog or a long task works on the design.
bool frmMain::takesDrops() const
{
    return !m_design->IsPlayMode() && !QApplication::activeModalWidget() && !QApplication::overrideCursor();
}

void frmMain::dragEnterEvent(QDragEnterEvent *event)
{
    if (takesDrops() && !droppedLayout(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

// The window that it comes from waits for the end of this event, not for the answers to questions.
void frmMain::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    const QString path = droppedLayout(*event->mimeData());
    QMetaObject::invokeMethod(
        this,
        [this, path] {
            activateWindow();
            if (takesDrops())
                runCommand([&] { m_files.open(path); });
        },
        Qt::QueuedConnection);
}

void frmMain::closeEvent(QCloseEvent *event)
{
    platform::SilentPrompts silent;
    platform::Prompts &prompts = m_state.sessionEnds ? silent : m_prompts;
    variables::writePendingEdits(m_state.catalogue, m_state.folders, m_state.locale, prompts);
    const Parting parting =
        m_files.saveWorkspace(m_state.sessionEnds ? Leaving::SessionEnds : Leaving::ByCommand);
    if (parting == Parting::Stays) {
        event->ignore();
        return;
    }
    m_recovery.end(parting == Parting::DesignIsSafe);
    platform::reportFailures(prompts, [this] {
        m_design->saveGeometry();
        m_files.used().keep();
    });
    platform::wipeFiles(m_state.folders.cache, u"*.bmp"_s);
    event->accept();
}

} // namespace shell
