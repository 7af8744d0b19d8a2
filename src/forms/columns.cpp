#include "forms/columns.h"

#include <numeric>

namespace forms {

namespace {

std::vector<int> filled(const std::vector<int> &heights, int gap, int limit)
{
    std::vector<int> sizes;
    int column = 0;
    for (const int height : heights) {
        if (sizes.empty() || column + height + gap > limit) {
            sizes.push_back(0);
            column = 0;
        }
        column += height + gap;
        ++sizes.back();
    }
    return sizes;
}

} // namespace

std::vector<int> columnSizes(const std::vector<int> &heights, int gap, int limit)
{
    std::vector<int> highest = filled(heights, gap, limit);
    if (highest.size() < 2)
        return highest;
    const int total = std::accumulate(heights.begin(), heights.end(), gap * static_cast<int>(heights.size()));
    for (int height = total / static_cast<int>(highest.size()); height < limit; ++height) {
        std::vector<int> sizes = filled(heights, gap, height);
        if (sizes.size() == highest.size())
            return sizes;
    }
    return highest;
}

} // namespace forms
