#pragma once

#include "controls/families.h"
#include "make_layouts/workbench.h"

namespace make_layouts {

// Puts a control of the family on the canvas, as a user's new one and then with these settings: "name =
// value" each, the name being that of a property's writer. A whole number may be a colour "#RRGGBB" or the
// name of a variable; "3px" are twips; "300 / 250" is 300 for PAL and 250 for NTSC. Two names are no
// properties: "picture", an example graphic, and "length", that of a bar in pixels.
void addControl(RowReader &row, const controls::Family &family, const QStringList &settings,
                Workbench &bench);

} // namespace make_layouts
