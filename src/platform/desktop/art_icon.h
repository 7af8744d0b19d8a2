#pragma once

#include <QIcon>

namespace platform {

// The icon of a drawing in the resources ("toolbar/new"). Its picture is read when the icon is first shown:
// most of a window's icons stand in menus that nobody has opened yet.
QIcon artIcon(const QString &name);

} // namespace platform
