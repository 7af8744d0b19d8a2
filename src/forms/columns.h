#pragma once

#include <vector>

namespace forms {

// How many of these heights, in order, stand in each column, so that no column is higher than `limit`, there
// are as few columns as possible, and they are about equal. A single height above the limit gets a column of
// its own. Each height counts `gap` more.
std::vector<int> columnSizes(const std::vector<int> &heights, int gap, int limit);

} // namespace forms
