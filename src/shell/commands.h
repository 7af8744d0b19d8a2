#pragma once

#include "platform/product.h"

#include <QString>

#include <span>

namespace shell {

class frmMain;

// The menus, popups and bars that a command may stand in; they are combined.
enum Place : unsigned {
    FileMenu = 1U << 0U,
    ViewMenu = 1U << 1U,
    ConfigurationMenu = 1U << 2U,
    EncodePatternMenu = 1U << 3U,
    HelpMenu = 1U << 4U,
    Toolbar = 1U << 5U,
    CanvasPopup = 1U << 6U, // the shortcuts of its entries are keys of the canvas
    ControlPopup = 1U << 7U,
    GroupPopup = 1U << 8U,
    LibraryPopup = 1U << 9U,
    ToolsMenu = 1U << 10U
};

// One entry: where it stands, how it looks, what it does, and what it shows of the program's state. In each
// of its places the entries stand in the order of the rows.
struct Command
{
    unsigned places;
    unsigned opens = 0;    // the place that is its sub-menu
    const char *name = ""; // of its action
    const char *caption = "";
    QString (*captionOf)(const frmMain &) = nullptr; // of a caption that follows the state, in its place
    const char *icon = "";                           // in the resources
    const char *shortcut = "";                       // several with "; " between them
    void (*run)(frmMain &) = nullptr;                // null for separators and sub-menus
    bool (*isChecked)(const frmMain &) = nullptr;    // null for entries without a mark
    bool (*isEnabled)(const frmMain &) = nullptr;    // null for always
    bool (*isVisible)(const frmMain &) = nullptr;    // null for always
    QString (*toolTip)(const frmMain &) = nullptr;   // null for the caption
    bool inPreview = false;                          // whether it can be used in Preview, too
    bool isMorvelOnly = false;                       // whether no other personality has it
};

std::span<const Command> commands();

// Whether the program has this entry under that name.
bool isOffered(const Command &row, platform::Personality personality);

// Whether any entry of these places can be used in Preview.
bool livesInPreview(unsigned places);

} // namespace shell
