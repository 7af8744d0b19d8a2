// The Tools menu.

#include "graphics/dialogs/frm_font_gen.h"
#include "shell/frm_main.h"
#include "shell/rows/command_rows.h"
#include "surface/variable_tree.h"

namespace shell {

namespace {

bool hasVariable(const frmMain &w) { return w.design().variables().currentVariable() != 0; }

QString variableHint(const frmMain &w)
{
    return hasVariable(w) ? QString()
                          : QStringLiteral("For the variable that is chosen in the Variables panel");
}

constexpr Command Rows[] = {
    {.places = ToolsMenu,
     .name = "mnuFilter",
     .caption = "&Filter",
     .run = [](frmMain &w) { w.design().variables().editFilter(); },
     .isEnabled = &hasVariable,
     .toolTip = &variableHint},
    {.places = ToolsMenu,
     .name = "mnuCalculus",
     .caption = "&Calculus Mode",
     .run = [](frmMain &w) { w.design().variables().editCalculus(); },
     .isEnabled = &hasVariable,
     .toolTip = &variableHint},
    {.places = ToolsMenu},
    {.places = ToolsMenu,
     .name = "mnuFontGenerator",
     .caption = "Font &Generator",
     .run = [](frmMain &w) { graphics::frmFontGen(w.state().fonts, {}, w.dialogContext()).exec(); }},
};

} // namespace

std::span<const Command> toolsRows() { return Rows; }

} // namespace shell
