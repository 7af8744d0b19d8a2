// The Help menu.

#include "shell/frm_main.h"
#include "shell/frm_start_splash.h"
#include "shell/help.h"
#include "shell/rows/command_rows.h"

namespace shell {

namespace {

constexpr Command Rows[] = {
    {.places = HelpMenu,
     .name = "mnuLocalHelp",
     .caption = "Open the local help",
     .icon = "menu/help",
     .shortcut = "F1",
     .run = [](frmMain &w) { w.prompts().showPage(QUrl::fromLocalFile(w.state().folders.localHelp())); }},
    {.places = HelpMenu,
     .name = "mnuOnlineHelp",
     .caption = "Open the on-line help",
     .run = [](frmMain &w) { w.prompts().showPage(*onlineHelp()); },
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
     .run = [](frmMain &w) { frmStartSplash(w.state().folders, &w).exec(); }},
};

} // namespace

std::span<const Command> helpRows() { return Rows; }

} // namespace shell
