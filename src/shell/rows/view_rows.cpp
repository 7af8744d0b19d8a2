// The View menu.

#include "shell/frm_main.h"
#include "shell/frm_options.h"
#include "shell/rows/command_rows.h"
#include "surface/canvas_view.h"
#include "surface/panel_area.h"

namespace shell {

using recorder::VideoStandard;
using surface::PanelId;

namespace {

template <VideoStandard Standard>
constexpr Command standard(const char *name, const char *caption)
{
    return {.places = ViewMenu,
            .name = name,
            .caption = caption,
            .run = [](frmMain &w) { w.design().setVideoStandard(Standard); },
            .isChecked = [](const frmMain &w) { return w.state().settings.VideoType == Standard; }};
}

template <int Percent>
constexpr Command zoom(const char *name, const char *caption, const char *shortcut)
{
    return {.places = ViewMenu,
            .name = name,
            .caption = caption,
            .shortcut = shortcut,
            .run = [](frmMain &w) { w.design().view().setZoom(Percent); },
            .isChecked = [](const frmMain &w) { return w.design().view().zoom() == Percent; }};
}

template <PanelId Id>
constexpr Command panel(const char *name, const char *caption, const char *shortcut)
{
    return {.places = ViewMenu,
            .name = name,
            .caption = caption,
            .shortcut = shortcut,
            .run =
                [](frmMain &w) {
                    surface::PanelArea &panels = w.design().panels();
                    panels.setPanelVisible(Id, !panels.isPanelVisible(Id));
                },
            .isChecked = [](const frmMain &w) { return w.design().panels().isPanelVisible(Id); }};
}

constexpr Command Rows[] = {
    {.places = ViewMenu,
     .name = "mnuOptions",
     .caption = "&Options",
     .icon = "menu/options",
     .run = [](frmMain &w) { frmOptions(w.design(), w.dialogContext()).exec(); }},
    {.places = ViewMenu},
    standard<VideoStandard::Pal>("mnuPAL", "PAL"),
    standard<VideoStandard::Ntsc>("mnuNTSC", "NTSC"),
    {.places = ViewMenu},
    {.places = ViewMenu,
     .name = "mnuZoomIn",
     .caption = "Zoom &In",
     .shortcut = "Ctrl++; Ctrl+=",
     .run = [](frmMain &w) { w.design().view().stepZoom(true); }},
    {.places = ViewMenu,
     .name = "mnuZoomOut",
     .caption = "Zoom O&ut",
     .shortcut = "Ctrl+-",
     .run = [](frmMain &w) { w.design().view().stepZoom(false); }},
    zoom<100>("mnuZoom100", "&100 %", "Ctrl+0"),
    zoom<200>("mnuZoom200", "&200 %", ""),
    {.places = ViewMenu,
     .name = "mnuZoomFit",
     .caption = "&Fit to Panel",
     .shortcut = "Ctrl+9",
     .run = [](frmMain &w) { w.design().view().setFitting(!w.design().view().isFitting()); },
     .isChecked = [](const frmMain &w) { return w.design().view().isFitting(); }},
    {.places = ViewMenu,
     .name = "mnuSafeAreas",
     .caption = "&Safe Areas",
     .run = [](frmMain &w) { w.design().showSafeAreas(!w.design().showsSafeAreas()); },
     .isChecked = [](const frmMain &w) { return w.design().showsSafeAreas(); }},
    {.places = ViewMenu},
    panel<PanelId::Design>("mnuPanelDesign", "&Design Panel", "Ctrl+1"),
    panel<PanelId::Library>("mnuPanelLibrary", "&Control Library Panel", "Ctrl+2"),
    panel<PanelId::Functions>("mnuPanelFunctions", "&Variables Panel", "Ctrl+3"),
    {.places = ViewMenu},
    {.places = ViewMenu,
     .name = "mnuNextPanel",
     .caption = "&Next Panel",
     .shortcut = "F6",
     .run = [](frmMain &w) { w.design().panels().stepPanel(true); }},
    {.places = ViewMenu,
     .name = "mnuPreviousPanel",
     .caption = "&Previous Panel",
     .shortcut = "Shift+F6",
     .run = [](frmMain &w) { w.design().panels().stepPanel(false); }},
    {.places = ViewMenu,
     .name = "mnuResetPanels",
     .caption = "&Reset Panels",
     .icon = "menu/panels",
     .run = [](frmMain &w) { w.design().resetPanels(); }},
};

} // namespace

std::span<const Command> viewRows() { return Rows; }

} // namespace shell
