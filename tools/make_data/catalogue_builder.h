#pragma once

#include "make_data/text_table.h"
#include "variables/catalogue.h"

namespace make_data {

// The normalised catalogue that the two tables describe. It is of use only when no problem was added.
variables::Catalogue buildCatalogue(const TextTable &units, const TextTable &variableRows,
                                    Problems &problems);

} // namespace make_data
