#include "shell/commands.h"

#include "platform/settings_keys.h"
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
#include "surface/canvas_view.h"
#include "surface/library_panel.h"
#include "surface/panel_area.h"

#include <algorithm>

namespace shell {

using controls::OverlayControl;
using recorder::EncodePattern;
using recorder::VideoStandard;
using surface::Operation;
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

// One entry each.
static_assert(platform::keys::RecentLayouts.size() == 8);

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
    template <int Percent>
    static void setZoom(frmMain &w)
    {
        w.m_design->view().setZoom(Percent);
    }
    template <int Percent>
    static bool isZoom(const frmMain &w)
    {
        return w.m_design->view().zoom() == Percent;
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
    static bool hasControls(const frmMain &w) { return !w.m_design->controls().isEmpty(); }
    static bool hasCurrent(const frmMain &w) { return w.m_design->currentControl() != nullptr; }
    template <void (OverlayControl::*Act)()>
    static void act(frmMain &w)
    {
        if (OverlayControl *control = w.m_design->currentControl())
            (control->*Act)();
    }
    template <Operation Taking>
    static void take(frmMain &w)
    {
        w.m_design->take(Taking);
    }
    static bool canTake(const frmMain &w) { return w.m_design->canTake(); }
    static void paste(frmMain &w)
    {
        if (w.m_state.clipboard.GroupPastePending())
            w.m_design->PasteAllObjects();
        else
            w.m_design->mnuPaste_Click();
    }
    template <Qt::Edge Edge>
    static void align(frmMain &w)
    {
        w.m_design->align(Edge);
    }
    template <Qt::Orientation Along>
    static void spaceEqually(frmMain &w)
    {
        w.m_design->spaceEqually(Along);
    }
    template <int Members>
    static bool hasMembers(const frmMain &w)
    {
        return w.m_design->group().size() >= Members;
    }

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
         .run = [](frmMain &w) { w.m_files.mnuLoadFactoryLayout(); },
         .inPreview = true},
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
        {.places = FileMenu | Toolbar,
         .name = "mnuPlayMode",
         .caption = "&Preview Mode",
         .icon = "toolbar/preview",
         .shortcut = "F5",
         .run = [](frmMain &w) { w.m_design->mnuPlayMode_Click(); }},
        {.places = FileMenu | Toolbar,
         .name = "mnuEditMode",
         .caption = "&Edit Mode",
         .icon = "toolbar/edit",
         .shortcut = "F5; Esc", // of the one that is enabled
         .run = [](frmMain &w) { w.m_design->mnuEditMode_Click(); },
         .isEnabled = [](const frmMain &w) { return w.m_design->IsPlayMode(); },
         .inPreview = true},
        {.places = FileMenu | Toolbar},
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
         .run = [](frmMain &w) { w.close(); },
         .inPreview = true},

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
         .name = "mnuZoomIn",
         .caption = "Zoom &In",
         .shortcut = "Ctrl++; Ctrl+=",
         .run = [](frmMain &w) { w.m_design->view().stepZoom(true); }},
        {.places = ViewMenu,
         .name = "mnuZoomOut",
         .caption = "Zoom O&ut",
         .shortcut = "Ctrl+-",
         .run = [](frmMain &w) { w.m_design->view().stepZoom(false); }},
        {.places = ViewMenu,
         .name = "mnuZoom100",
         .caption = "&100 %",
         .shortcut = "Ctrl+0",
         .run = &setZoom<100>,
         .isChecked = &isZoom<100>},
        {.places = ViewMenu,
         .name = "mnuZoom200",
         .caption = "&200 %",
         .run = &setZoom<200>,
         .isChecked = &isZoom<200>},
        {.places = ViewMenu,
         .name = "mnuZoomFit",
         .caption = "&Fit to Panel",
         .shortcut = "Ctrl+9",
         .run = [](frmMain &w) { w.m_design->view().setFitting(!w.m_design->view().isFitting()); },
         .isChecked = [](const frmMain &w) { return w.m_design->view().isFitting(); }},
        {.places = ViewMenu,
         .name = "mnuSafeAreas",
         .caption = "&Safe Areas",
         .run = [](frmMain &w) { w.m_design->showSafeAreas(!w.m_design->showsSafeAreas()); },
         .isChecked = [](const frmMain &w) { return w.m_design->showsSafeAreas(); }},
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
             },
         .isMorvelOnly = true},
        {.places = ConfigurationMenu,
         .name = "mnuAutoChapterMark",
         .caption = "Auto Chapter Markers",
         .run =
             [](frmMain &w) {
                 recorder::frmAutoChapterMark(w.m_state.settings, w.m_state.catalogue.live, dialogContext(w))
                     .exec();
             },
         .isMorvelOnly = true},
        {.places = ConfigurationMenu, .name = "dashsp", .isMorvelOnly = true},
        {.places = ConfigurationMenu,
         .name = "mnuSetMsgFrequency",
         .caption = "Message Frequency",
         .run =
             [](frmMain &w) {
                 ProgramState &state = w.m_state;
                 recorder::frmFrequency dialog(state.settings.MessageTable, state.folders.MessagesFile(),
                                               dialogContext(w));
                 if (dialog.exec() == QDialog::Accepted)
                     state.startMessages = state.settings.MessageTable; // as the file has it
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
        {.places = ConfigurationMenu, .name = "l4", .isMorvelOnly = true},
        {.places = ConfigurationMenu,
         .name = "mnuBitRate",
         .captionOf =
             [](const frmMain &w) { return recorder::bitRateCaption(w.m_state.settings.CurrentBitRate); },
         .icon = "menu/bitrate",
         .run =
             [](frmMain &w) {
                 recorder::frmManualBitRate(w.m_state.settings.CurrentBitRate, dialogContext(w)).exec();
             },
         .isMorvelOnly = true},
        {.places = ConfigurationMenu,
         .opens = EncodePatternMenu,
         .name = "mnuEncodePattern",
         .caption = "Encode Pattern",
         .isMorvelOnly = true},
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
         .run = [](frmMain &w) { w.m_prompts.showPage(QUrl::fromLocalFile(w.m_state.folders.localHelp())); }},
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
         .isEnabled = &hasCurrent},
        {.places = Toolbar,
         .name = "cmdUp",
         .caption = "Nudge up",
         .icon = "toolbar/up",
         .run = &sendKey<Qt::Key_Up>,
         .isEnabled = &hasCurrent},
        {.places = Toolbar,
         .name = "cmdDown",
         .caption = "Nudge down",
         .icon = "toolbar/down",
         .run = &sendKey<Qt::Key_Down>,
         .isEnabled = &hasCurrent},
        {.places = Toolbar,
         .name = "cmdRight",
         .caption = "Nudge right",
         .icon = "toolbar/right",
         .run = &sendKey<Qt::Key_Right>,
         .isEnabled = &hasCurrent},
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
         .isEnabled = &hasCurrent},

        {.places = CanvasPopup,
         .name = "mnuCut",
         .caption = "Cu&t",
         .icon = "menu/cut",
         .shortcut = "Ctrl+X",
         .run = &take<Operation::Cut>,
         .isEnabled = &canTake},
        {.places = CanvasPopup,
         .name = "mnuCopy",
         .caption = "&Copy",
         .icon = "menu/copy",
         .shortcut = "Ctrl+C",
         .run = &take<Operation::Copy>,
         .isEnabled = &canTake},
        {.places = CanvasPopup,
         .name = "mnuPaste",
         .caption = "&Paste",
         .icon = "menu/paste",
         .shortcut = "Ctrl+V",
         .run = &paste,
         .isEnabled = [](const frmMain &w) { return !w.m_state.clipboard.isEmpty(); }},
        {.places = CanvasPopup,
         .name = "mnuDelete",
         .caption = "&Delete",
         .icon = "menu/delete",
         .shortcut = "Del",
         .run = &sendKey<Qt::Key_Delete>,
         .isEnabled = &hasCurrent},
        {.places = CanvasPopup,
         .name = "mnuProperties",
         .caption = "P&roperties",
         .icon = "toolbar/properties",
         .run = &sendKey<Qt::Key_Return>,
         .isEnabled = &hasCurrent},

        {.places = ControlPopup,
         .name = "mnuCut_C",
         .caption = "Cu&t",
         .icon = "menu/cut",
         .run = &act<&OverlayControl::mnuCut_Click>},
        {.places = ControlPopup,
         .name = "mnuCopy_C",
         .caption = "&Copy",
         .icon = "menu/copy",
         .run = &act<&OverlayControl::mnuCopy_Click>},
        {.places = ControlPopup,
         .name = "mnuPaste_C",
         .caption = "&Paste",
         .icon = "menu/paste",
         .run = [](frmMain &w) { w.m_design->mnuPaste_Click(); },
         .isEnabled = [](const frmMain &w) { return w.m_state.clipboard.control.has_value(); }},
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
        {.places = ControlPopup,
         .name = "mnuDefineCustom_C",
         .caption = "D&efine as custom....",
         .icon = "families/entry",
         .run =
             [](frmMain &w) {
                 if (const controls::OverlayControl *control = w.m_design->currentControl())
                     w.m_design->library().mnuDefineCustom_Click(*control);
             }},

        {.places = GroupPopup,
         .name = "mnuGroupCut",
         .caption = "Cut",
         .icon = "menu/cut",
         .run = &take<Operation::Cut>,
         .isEnabled = [](const frmMain &w) { return !w.m_groupMenuPastes; }},
        {.places = GroupPopup,
         .name = "mnuGroupCopy",
         .caption = "Copy",
         .icon = "menu/copy",
         .run = &take<Operation::Copy>,
         .isEnabled = [](const frmMain &w) { return !w.m_groupMenuPastes; }},
        {.places = GroupPopup,
         .name = "mnuGroupPaste",
         .caption = "Paste",
         .icon = "menu/paste",
         .run = [](frmMain &w) { w.m_design->PasteAllObjects(); },
         .isEnabled = [](const frmMain &w) { return w.m_groupMenuPastes; }},
        {.places = GroupPopup},
        {.places = GroupPopup,
         .name = "mnuAlignLeft",
         .caption = "Align &Left Edges",
         .icon = "menu/align_left",
         .run = &align<Qt::LeftEdge>,
         .isEnabled = &hasMembers<2>},
        {.places = GroupPopup,
         .name = "mnuAlignRight",
         .caption = "Align &Right Edges",
         .icon = "menu/align_right",
         .run = &align<Qt::RightEdge>,
         .isEnabled = &hasMembers<2>},
        {.places = GroupPopup,
         .name = "mnuAlignTop",
         .caption = "Align &Top Edges",
         .icon = "menu/align_top",
         .run = &align<Qt::TopEdge>,
         .isEnabled = &hasMembers<2>},
        {.places = GroupPopup,
         .name = "mnuAlignBottom",
         .caption = "Align &Bottom Edges",
         .icon = "menu/align_bottom",
         .run = &align<Qt::BottomEdge>,
         .isEnabled = &hasMembers<2>},
        {.places = GroupPopup},
        {.places = GroupPopup,
         .name = "mnuSpaceAcross",
         .caption = "Space &Horizontally",
         .icon = "menu/space_horizontally",
         .run = &spaceEqually<Qt::Horizontal>,
         .isEnabled = &hasMembers<3>},
        {.places = GroupPopup,
         .name = "mnuSpaceDown",
         .caption = "Space &Vertically",
         .icon = "menu/space_vertically",
         .run = &spaceEqually<Qt::Vertical>,
         .isEnabled = &hasMembers<3>},

        {.places = LibraryPopup,
         .name = "mnuRenameControl",
         .caption = "Rename Control",
         .run = [](frmMain &w) { w.m_design->library().mnuRenameControl_Click(); }},
        {.places = LibraryPopup,
         .name = "mnuDeleteControl",
         .caption = "Delete Control",
         .icon = "menu/delete",
         .run = [](frmMain &w) { w.m_design->library().mnuDeleteControl_Click(); }},
    };
};

std::span<const Command> commands() { return CommandTable::Rows; }

bool isOffered(const Command &row, platform::Personality personality)
{
    return !row.isMorvelOnly || personality == platform::Personality::MORVEL;
}

bool livesInPreview(unsigned places)
{
    const auto rows = commands();
    return std::any_of(rows.begin(), rows.end(),
                       [places](const Command &row) { return row.inPreview && (row.places & places); });
}

} // namespace shell
