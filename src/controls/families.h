#pragma once

#include "controls/control_type.h"

#include <QString>

#include <span>

class QWidget;

namespace controls {

class ControlHost;
class OverlayControl;
struct Family;

using ControlFactory = OverlayControl *(*)(const Family &, ControlHost &, QWidget *canvas);
using PropertyDialogRunner = void (*)(OverlayControl &);

// One kind of overlay control. Rows without a factory are families that the tool cannot place.
struct Family
{
    ControlType type;
    char letter;             // first letter of library keys
    const char *name;        // class name, section of the library store
    const char *caption;     // in the library
    const char *menuCaption; // in menus
    const char *menuItem;    // name of the add command
    const char *rootKey;     // library root
    const char *iconFile;    // standard thumbnail
    const char *art;         // icon in the resources
    ControlFactory create = nullptr;
    PropertyDialogRunner showProperties = nullptr;
};

// All families in the order of the library and the Add Control menu.
std::span<const Family> families();

// Null for a code that no family has.
const Family *familyOf(ControlType type);
// The family whose library keys begin like `key`; null when there is none.
const Family *familyOfKey(const QString &key);

} // namespace controls
