// The File menu.

#include "platform/settings_keys.h"
#include "shell/frm_main.h"
#include "shell/rows/command_rows.h"

namespace shell {

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

constexpr Command Rows[] = {
    {.places = FileMenu | Toolbar,
     .name = "mnuNew",
     .caption = "&New Layout",
     .icon = "toolbar/new",
     .shortcut = "Ctrl+N",
     .run = [](frmMain &w) { w.files().mnuNew(); }},
    {.places = FileMenu | Toolbar,
     .name = "mnuLoadConfig",
     .caption = "&Load Layout",
     .icon = "toolbar/open",
     .shortcut = "Ctrl+O",
     .run = [](frmMain &w) { w.files().mnuLoadConfig(); }},
    {.places = FileMenu | Toolbar,
     .name = "mnuSaveConfig",
     .caption = "&Save Layout",
     .icon = "toolbar/save",
     .shortcut = "Ctrl+S",
     .run = [](frmMain &w) { w.files().mnuSaveConfig(); }},
    {.places = FileMenu,
     .name = "mnuLoadFactoryLayout",
     .caption = "Load factory layouts",
     .icon = "menu/factory",
     .run = [](frmMain &w) { w.files().mnuLoadFactoryLayout(); },
     .inPreview = true},
    {.places = FileMenu | Toolbar},
    {.places = FileMenu,
     .name = "mnuLoadVarInfo",
     .caption = "Load &Variable Information",
     .run = [](frmMain &w) { w.variables().mnuLoadVarInfo(); }},
    {.places = FileMenu,
     .name = "mnuSaveVarInfo",
     .caption = "Save Variable &Information",
     .run = [](frmMain &w) { w.variables().mnuSaveVarInfo(); }},
    {.places = FileMenu,
     .name = "mnuRestoreDefaultVar",
     .caption = "&Restore Default Variable Information",
     .run = [](frmMain &w) { w.variables().mnuRestoreDefaultVar(); }},
    {.places = FileMenu},
    {.places = FileMenu | Toolbar,
     .name = "mnuPlayMode",
     .caption = "&Preview Mode",
     .icon = "toolbar/preview",
     .shortcut = "F5",
     .run = [](frmMain &w) { w.design().mnuPlayMode_Click(); }},
    {.places = FileMenu | Toolbar,
     .name = "mnuEditMode",
     .caption = "&Edit Mode",
     .icon = "toolbar/edit",
     .shortcut = "F5; Esc", // of the one that is enabled
     .run = [](frmMain &w) { w.design().mnuEditMode_Click(); },
     .isEnabled = [](const frmMain &w) { return w.design().IsPlayMode(); },
     .inPreview = true},
    {.places = FileMenu | Toolbar},
    {.places = FileMenu,
     .name = "mnuPrdCPULoad",
     .caption = "Calculate Predictive CPU Load",
     .icon = "menu/load_estimate",
     .run = [](frmMain &w) { w.files().mnuPrdCPULoad(); }},
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
};

} // namespace

std::span<const Command> fileRows() { return Rows; }

} // namespace shell
