#pragma once

#include "controls/control_type.h"

#include <QString>

#include <span>

namespace controls {

// One kind of overlay control: its names. What makes its controls stands in factories.h, what shows their
// properties in family_dialogs.h.
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
};

// All families in the order of the library and the Add Control menu.
std::span<const Family> families();

// Null for a code that no family has.
const Family *familyOf(ControlType type);
// The family whose library keys begin like `key`; null when there is none.
const Family *familyOfKey(const QString &key);

} // namespace controls
