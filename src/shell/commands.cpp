#include "shell/commands.h"

#include "recorder/bit_rate.h"
#include "recorder/dialogs/frm_auto_chapter_mark.h"
#include "recorder/dialogs/frm_frequency.h"
#include "recorder/dialogs/frm_gear_display.h"
#include "recorder/dialogs/frm_manual_bit_rate.h"
#include "recorder/dialogs/frm_rpm.h"
#include "recorder/dialogs/frm_special_icons.h"
#include "recorder/dialogs/frm_start_stop_rec.h"
#include "shell/frm_main.h"
#include "shell/frm_options.h"
#include "shell/frm_start_splash.h"
#include "shell/help.h"
#include "surface/panel_area.h"

namespace shell {

using recorder::EncodePattern;
using recorder::VideoStandard;
using surface::PanelId;

namespace {

// An entry for the recent layout of this number, counted from 0.
template <qsizetype Index>
constexpr Command recentLayout(const char *name)
{
    return {.places = FileMenu,
            .name = name,
            .captionOf =
                [](const frmMain &w) { return recentCaption(Index, w.files().used().recent().value(Index)); },
            .run = [](frmMain &w) { w.files().openRecent(Index); },
            .isVisible = [](const frmMain &w) { return Index < w.files().used().recent().size(); }};
}

} // namespace

// What a command may see of the main window.
struct CommandTable
{
    template <PanelId Id>
    static void togglePanel(frmMain &w)
    {
        surface::PanelArea &panels = w.m_design->panels();
        panels.setPanelVisible(Id, !panels.isPanelVisible(Id));
    }
    template <PanelId Id>
    static bool isPanelVisible(const frmMain &w)
    {
        return w.m_design->panels().isPanelVisible(Id);
    }
    template <VideoStandard Standard>
    static void setStandard(frmMain &w)
    {
        w.m_design->setVideoStandard(Standard);
    }
    template <VideoStandard Standard>
    static bool isStandard(const frmMain &w)
    {
        return w.m_state.settings.VideoType == Standard;
    }
    template <EncodePattern Pattern>
    static void setPattern(frmMain &w)
    {
        w.m_state.settings.encodePattern = Pattern;
    }
    template <EncodePattern Pattern>
    static bool isPattern(const frmMain &w)
    {
        return w.m_state.settings.encodePattern == Pattern;
    }
    template <Qt::Key Key>
    static void sendKey(frmMain &w)
    {
        w.m_design->pressKey(Key);
    }
    static forms::Context dialogContext(frmMain &w) { return {w.m_prompts, w.m_state.locale, &w}; }
    static bool isMorvel(const frmMain &) { return platform::personality() == platform::Personality::MORVEL; }
    static bool hasControls(const frmMain &w) { return !w.m_design->controls().isEmpty(); }

    static constexpr Command Rows[] = {
        {.places = FileMenu | Toolbar,
         .name = "mnuNew",
         .caption = "&New Layout",
         .icon = "toolbar/new",
         .shortcut = "Ctrl+N",
         .run = [](frmMain &w) { w.m_files.mnuNew(); }},
        {.places = FileMenu | Toolbar,
         .name = "mnuLoadConfig",
         .caption = "&Load Layout",
         .icon = "toolbar/open",
         .shortcut = "Ctrl+O",
         .run = [](frmMain &w) { w.m_files.mnuLoadConfig(); }},
        {.places = FileMenu | Toolbar,
         .name = "mnuSaveConfig",
         .caption = "&Save Layout",
         .icon = "toolbar/save",
         .shortcut = "Ctrl+S",
         .run = [](frmMain &w) { w.m_files.mnuSaveConfig(); }},
        {.places = FileMenu,
         .name = "mnuLoadFactoryLayout",
         .caption = "Load factory layouts",
         .icon = "menu/factory",
         .run = [](frmMain &w) { w.m_files.mnuLoadFactoryLayout(); }},
        {.places = FileMenu | Toolbar},
        {.places = FileMenu,
         .name = "mnuLoadVarInfo",
         .caption = "Load &Variable Information",
         .run = [](frmMain &w) { w.m_variables.mnuLoadVarInfo(); }},
        {.places = FileMenu,
         .name = "mnuSaveVarInfo",
         .caption = "Save Variable &Information",
         .run = [](frmMain &w) { w.m_variables.mnuSaveVarInfo(); }},
        {.places = FileMenu,
         .name = "mnuRestoreDefaultVar",
         .caption = "&Restore Default Variable Information",
         .run = [](frmMain &w) { w.m_variables.mnuRestoreDefaultVar(); }},
        {.places = FileMenu},
        {.places = FileMenu,
         .name = "mnuPrdCPULoad",
         .caption = "Calculate Predictive CPU Load",
         .icon = "menu/load_estimate",
         .run = [](frmMain &w) { w.m_files.mnuPrdCPULoad(); }},
        {.places = FileMenu},
        recentLayout<0>("mnuRecent1"),
        recentLayout<1>("mnuRecent2"),
        recentLayout<2>("mnuRecent3"),
        recentLayout<3>("mnuRecent4"),
        recentLayout<4>("mnuRecent5"),
        recentLayout<5>("mnuRecent6"),
        recentLayout<6>("mnuRecent7"),
        recentLayout<7>("mnuRecent8"),
        {.places = FileMenu},
        {.places = FileMenu,
         .name = "mnuExit",
         .caption = "E&xit",
         .icon = "menu/exit",
         .shortcut = "Ctrl+Q",
         .run = [](frmMain &w) { w.close(); }},

        {.places = ViewMenu,
         .name = "mnuOptions",
         .caption = "&Options",
         .icon = "menu/options",
         .run = [](frmMain &w) { frmOptions(*w.m_design, dialogContext(w)).exec(); }},
        {.places = ViewMenu},
        {.places = ViewMenu,
         .name = "mnuPAL",
         .caption = "PAL",
         .run = &setStandard<VideoStandard::Pal>,
         .isChecked = &isStandard<VideoStandard::Pal>},
        {.places = ViewMenu,
         .name = "mnuNTSC",
         .caption = "NTSC",
         .run = &setStandard<VideoStandard::Ntsc>,
         .isChecked = &isStandard<VideoStandard::Ntsc>},
        {.places = ViewMenu},
        {.places = ViewMenu,
         .name = "mnuPanelDesign",
         .caption = "&Design Panel",
         .shortcut = "Ctrl+1",
         .run = &togglePanel<PanelId::Design>,
         .isChecked = &isPanelVisible<PanelId::Design>},
        {.places = ViewMenu,
         .name = "mnuPanelLibrary",
         .caption = "&Control Library Panel",
         .shortcut = "Ctrl+2",
         .run = &togglePanel<PanelId::Library>,
         .isChecked = &isPanelVisible<PanelId::Library>},
        {.places = ViewMenu,
         .name = "mnuPanelFunctions",
         .caption = "&Variables Panel",
         .shortcut = "Ctrl+3",
         .run = &togglePanel<PanelId::Functions>,
         .isChecked = &isPanelVisible<PanelId::Functions>},
        {.places = ViewMenu},
        {.places = ViewMenu,
         .name = "mnuNextPanel",
         .caption = "&Next Panel",
         .shortcut = "F6",
         .run = [](frmMain &w) { w.m_design->panels().stepPanel(true); }},
        {.places = ViewMenu,
         .name = "mnuPreviousPanel",
         .caption = "&Previous Panel",
         .shortcut = "Shift+F6",
         .run = [](frmMain &w) { w.m_design->panels().stepPanel(false); }},
        {.places = ViewMenu,
         .name = "mnuResetPanels",
         .caption = "&Reset Panels",
         .icon = "menu/panels",
         .run = [](frmMain &w) { w.m_design->resetPanels(); }},

        {.places = ConfigurationMenu,
         .name = "mnuAutoStartStopRec",
         .caption = "Auto Start/Stop Recording",
         .run =
             [](frmMain &w) {
                 recorder::RecorderSettings &settings = w.m_state.settings;
                 recorder::frmStartStopRec(settings.autoStart, settings.autoStop, w.m_state.catalogue.live,
                                           dialogContext(w))
                     .exec();
             }},
        {.places = ConfigurationMenu,
         .name = "mnuAutoChapterMark",
         .caption = "Auto Chapter Markers",
         .run =
             [](frmMain &w) {
                 recorder::frmAutoChapterMark(w.m_state.settings, w.m_state.catalogue.live, dialogContext(w))
                     .exec();
             }},
        {.places = ConfigurationMenu,
         .name = "mnuSetMsgFrequency",
         .caption = "Message Frequency",
         .run =
             [](frmMain &w) {
                 recorder::frmFrequency(w.m_state.settings.MessageTable, w.m_state.folders.MessagesFile(),
                                        dialogContext(w))
                     .exec();
             }},
        {.places = ConfigurationMenu,
         .name = "mnuGearDisplay",
         .caption = "Gear Display",
         .run =
             [](frmMain &w) {
                 recorder::frmGearDisplay(w.m_state.settings, w.m_state.catalogue.live, dialogContext(w))
                     .exec();
             }},
        {.places = ConfigurationMenu,
         .name = "mnuRPM",
         .caption = "RPM",
         .run =
             [](frmMain &w) {
                 recorder::frmRPM(w.m_state.settings.PulsesPerRevolution, dialogContext(w)).exec();
             }},
        {.places = ConfigurationMenu,
         .name = "mnuSpecialIcons",
         .caption = "Special Icons",
         .run =
             [](frmMain &w) { recorder::frmSpecialIcons(w.m_state.settings.icon, dialogContext(w)).exec(); }},
        {.places = ConfigurationMenu, .name = "l4", .isVisible = &isMorvel},
        {.places = ConfigurationMenu,
         .name = "mnuBitRate",
         .captionOf =
             [](const frmMain &w) { return recorder::bitRateCaption(w.m_state.settings.CurrentBitRate); },
         .icon = "menu/bitrate",
         .run =
             [](frmMain &w) {
                 recorder::frmManualBitRate(w.m_state.settings.CurrentBitRate, dialogContext(w)).exec();
             },
         .isVisible = &isMorvel},
        {.places = ConfigurationMenu,
         .name = "mnuEncodePattern",
         .caption = "Encode Pattern",
         .opens = EncodePatternMenu,
         .isVisible = &isMorvel},
        {.places = EncodePatternMenu,
         .name = "mnuI",
         .caption = "I",
         .run = &setPattern<EncodePattern::I>,
         .isChecked = &isPattern<EncodePattern::I>},
        {.places = EncodePatternMenu,
         .name = "mnuIP",
         .caption = "IP",
         .run = &setPattern<EncodePattern::IP>,
         .isChecked = &isPattern<EncodePattern::IP>},
        {.places = EncodePatternMenu,
         .name = "mnuIPB",
         .caption = "IPB",
         .run = &setPattern<EncodePattern::IPB>,
         .isChecked = &isPattern<EncodePattern::IPB>},

        {.places = HelpMenu,
         .name = "mnuLocalHelp",
         .caption = "Open the local help",
         .icon = "menu/help",
         .shortcut = "F1",
         .run = [](frmMain &w) { openLocalHelp(w.m_state.folders, w.m_prompts); }},
        {.places = HelpMenu,
         .name = "mnuOnlineHelp",
         .caption = "Open the on-line help",
         .run = [](frmMain &w) { w.m_prompts.showPage(*onlineHelp()); },
         .isEnabled = [](const frmMain &) { return onlineHelp().has_value(); },
         .toolTip =
             [](const frmMain &) {
                 const auto page = onlineHelp();
                 return page ? page->toString()
                             : QStringLiteral("This version was made without the address of a help page");
             }},
        {.places = HelpMenu},
        {.places = HelpMenu,
         .name = "mnuAbout",
         .caption = "About Us",
         .icon = "menu/about",
         .run = [](frmMain &w) { frmStartSplash(w.m_state.folders, &w).exec(); }},

        {.places = Toolbar,
         .name = "cmdLeft",
         .caption = "Nudge left",
         .icon = "toolbar/left",
         .run = &sendKey<Qt::Key_Left>,
         .isEnabled = &hasControls},
        {.places = Toolbar,
         .name = "cmdUp",
         .caption = "Nudge up",
         .icon = "toolbar/up",
         .run = &sendKey<Qt::Key_Up>,
         .isEnabled = &hasControls},
        {.places = Toolbar,
         .name = "cmdDown",
         .caption = "Nudge down",
         .icon = "toolbar/down",
         .run = &sendKey<Qt::Key_Down>,
         .isEnabled = &hasControls},
        {.places = Toolbar,
         .name = "cmdRight",
         .caption = "Nudge right",
         .icon = "toolbar/right",
         .run = &sendKey<Qt::Key_Right>,
         .isEnabled = &hasControls},
        {.places = Toolbar},
        {.places = Toolbar,
         .name = "cmdPrevious",
         .caption = "Previous control",
         .icon = "toolbar/previous",
         .run = [](frmMain &w) { w.m_design->stepControl(false); },
         .isEnabled = &hasControls},
        {.places = Toolbar,
         .name = "cmdNext",
         .caption = "Next control",
         .icon = "toolbar/next",
         .run = [](frmMain &w) { w.m_design->stepControl(true); },
         .isEnabled = &hasControls},
        {.places = Toolbar},
        {.places = Toolbar,
         .name = "cmdEnter",
         .caption = "Properties of the selected control",
         .icon = "toolbar/properties",
         .run = &sendKey<Qt::Key_Return>,
         .isEnabled = &hasControls},

        {.places = ControlPopup,
         .name = "mnuDelete_C",
         .caption = "&Delete",
         .icon = "menu/delete",
         .run = &sendKey<Qt::Key_Delete>},
        {.places = ControlPopup,
         .name = "mnuProperties_C",
         .caption = "P&roperties",
         .icon = "toolbar/properties",
         .run = &sendKey<Qt::Key_Return>},
    };
};

std::span<const Command> commands() { return CommandTable::Rows; }

} // namespace shell
