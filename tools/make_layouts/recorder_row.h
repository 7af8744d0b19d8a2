#pragma once

#include "make_layouts/workbench.h"

namespace make_layouts {

// Takes over one of the recorder's settings, or the unit of a variable; the first cell says which.
void takeSetting(RowReader &row, Workbench &bench);

} // namespace make_layouts
