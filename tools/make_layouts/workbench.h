#pragma once

#include "controls/control_surface.h"
#include "make_data/text_table.h"
#include "variables/catalogue.h"

namespace make_layouts {

using make_data::Problems;
using make_data::RowReader;
using make_data::TextTable;

// What the rows of a layout's text work on.
struct Workbench
{
    controls::ControlSurface &surface;
    variables::Catalogue &catalogue;
    recorder::RecorderSettings &settings;
    QString pictures; // folder of the pictures for the layout's video standard
};

// The catalogue index of the variable with this name. Reports a name that is not there.
std::optional<int> variableNamed(RowReader &row, const QString &name, const variables::Catalogue &catalogue);

} // namespace make_layouts
