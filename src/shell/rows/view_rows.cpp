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

template <PanelId Id>
void togglePanel(frmMain &w)
{
    surface::PanelArea &panels = w.design().panels();
    panels.setPanelVisible(Id, !panels.isPanelVisible(Id));
}

template <PanelId Id>
bool isPanelVisible(const frmMain &w)
{
    return w.design().panels().isPanelVisible(Id);
}

template <VideoStandard Standard>
void setStandard(frmMain &w)
{
    w.design().setVideoStandard(Standard);
}

template <VideoStandard Standard>
bool isStandard(const frmMain &w)
{
    return w.state().settings.VideoType == Standard;
}

template <int Percent>
void setZoom(frmMain &w)
{
    w.design().view().setZoom(Percent);
}

template <int Percent>
bool isZoom(const frmMain &w)
{
    return w.design().view().zoom() == Percent;
}

constexpr Command Rows[] = {
    {.places = ViewMenu,
     .name = "mnuOptions",
     .caption = "&Options",
     .icon = "menu/options",
     .run = [](frmMain &w) { frmOptions(w.design(), w.dialogContext()).exec(); }},
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
     .run = [](frmMain &w) { w.design().view().stepZoom(true); }},
    {.places = ViewMenu,
     .name = "mnuZoomOut",
     .caption = "Zoom O&ut",
     .shortcut = "Ctrl+-",
     .run = [](frmMain &w) { w.design().view().stepZoom(false); }},
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
     .run = [](frmMain &w) { w.design().view().setFitting(!w.design().view().isFitting()); },
     .isChecked = [](const frmMain &w) { return w.design().view().isFitting(); }},
    {.places = ViewMenu,
     .name = "mnuSafeAreas",
     .caption = "&Safe Areas",
     .run = [](frmMain &w) { w.design().showSafeAreas(!w.design().showsSafeAreas()); },
     .isChecked = [](const frmMain &w) { return w.design().showsSafeAreas(); }},
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
