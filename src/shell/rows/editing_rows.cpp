// What acts on the controls: the end of the toolbar, and the popups of canvas and library.

#include "shell/frm_main.h"
#include "shell/rows/command_rows.h"
#include "surface/library_panel.h"

namespace shell {

using controls::OverlayControl;
using surface::Operation;

namespace {

template <Qt::Key Key>
void sendKey(frmMain &w)
{
    w.design().pressKey(Key);
}

bool hasControls(const frmMain &w) { return !w.design().controls().isEmpty(); }

bool hasCurrent(const frmMain &w) { return w.design().currentControl() != nullptr; }

template <void (OverlayControl::*Act)()>
void act(frmMain &w)
{
    if (OverlayControl *control = w.design().currentControl())
        (control->*Act)();
}

template <Operation Taking>
void take(frmMain &w)
{
    w.design().take(Taking);
}

bool canTake(const frmMain &w) { return w.design().canTake(); }

void paste(frmMain &w)
{
    if (w.state().clipboard.GroupPastePending())
        w.design().PasteAllObjects();
    else
        w.design().mnuPaste_Click();
}

template <int Members>
bool hasMembers(const frmMain &w)
{
    return w.design().group().size() >= Members;
}

bool groupMenuCopies(const frmMain &w) { return !w.groupMenuPastes(); }

template <Qt::Key Key>
constexpr Command nudge(const char *name, const char *caption, const char *icon)
{
    return {.places = Toolbar,
            .name = name,
            .caption = caption,
            .icon = icon,
            .run = &sendKey<Key>,
            .isEnabled = &hasCurrent};
}

template <Qt::Edge Edge>
constexpr Command edges(const char *name, const char *caption, const char *icon)
{
    return {.places = GroupPopup,
            .name = name,
            .caption = caption,
            .icon = icon,
            .run = [](frmMain &w) { w.design().align(Edge); },
            .isEnabled = &hasMembers<2>};
}

template <Qt::Orientation Along>
constexpr Command spacing(const char *name, const char *caption, const char *icon)
{
    return {.places = GroupPopup,
            .name = name,
            .caption = caption,
            .icon = icon,
            .run = [](frmMain &w) { w.design().spaceEqually(Along); },
            .isEnabled = &hasMembers<3>};
}

constexpr Command Rows[] = {
    nudge<Qt::Key_Left>("cmdLeft", "Nudge left", "toolbar/left"),
    nudge<Qt::Key_Up>("cmdUp", "Nudge up", "toolbar/up"),
    nudge<Qt::Key_Down>("cmdDown", "Nudge down", "toolbar/down"),
    nudge<Qt::Key_Right>("cmdRight", "Nudge right", "toolbar/right"),
    {.places = Toolbar},
    {.places = Toolbar,
     .name = "cmdPrevious",
     .caption = "Previous control",
     .icon = "toolbar/previous",
     .run = [](frmMain &w) { w.design().stepControl(false); },
     .isEnabled = &hasControls},
    {.places = Toolbar,
     .name = "cmdNext",
     .caption = "Next control",
     .icon = "toolbar/next",
     .run = [](frmMain &w) { w.design().stepControl(true); },
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
     .isEnabled = [](const frmMain &w) { return !w.state().clipboard.isEmpty(); }},
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
     .run = [](frmMain &w) { w.design().mnuPaste_Click(); },
     .isEnabled = [](const frmMain &w) { return w.state().clipboard.control.has_value(); }},
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
             if (const controls::OverlayControl *control = w.design().currentControl())
                 w.design().library().mnuDefineCustom_Click(*control);
         }},

    {.places = GroupPopup,
     .name = "mnuGroupCut",
     .caption = "Cut",
     .icon = "menu/cut",
     .run = &take<Operation::Cut>,
     .isEnabled = &groupMenuCopies},
    {.places = GroupPopup,
     .name = "mnuGroupCopy",
     .caption = "Copy",
     .icon = "menu/copy",
     .run = &take<Operation::Copy>,
     .isEnabled = &groupMenuCopies},
    {.places = GroupPopup,
     .name = "mnuGroupPaste",
     .caption = "Paste",
     .icon = "menu/paste",
     .run = [](frmMain &w) { w.design().PasteAllObjects(); },
     .isEnabled = [](const frmMain &w) { return w.groupMenuPastes(); }},
    {.places = GroupPopup},
    edges<Qt::LeftEdge>("mnuAlignLeft", "Align &Left Edges", "menu/align_left"),
    edges<Qt::RightEdge>("mnuAlignRight", "Align &Right Edges", "menu/align_right"),
    edges<Qt::TopEdge>("mnuAlignTop", "Align &Top Edges", "menu/align_top"),
    edges<Qt::BottomEdge>("mnuAlignBottom", "Align &Bottom Edges", "menu/align_bottom"),
    {.places = GroupPopup},
    spacing<Qt::Horizontal>("mnuSpaceAcross", "Space &Horizontally", "menu/space_horizontally"),
    spacing<Qt::Vertical>("mnuSpaceDown", "Space &Vertically", "menu/space_vertically"),

    {.places = LibraryPopup,
     .name = "mnuRenameControl",
     .caption = "Rename Control",
     .run = [](frmMain &w) { w.design().library().mnuRenameControl_Click(); }},
    {.places = LibraryPopup,
     .name = "mnuDeleteControl",
     .caption = "Delete Control",
     .icon = "menu/delete",
     .run = [](frmMain &w) { w.design().library().mnuDeleteControl_Click(); }},
};

} // namespace

std::span<const Command> editingRows() { return Rows; }

} // namespace shell
