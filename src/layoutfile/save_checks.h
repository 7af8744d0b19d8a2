#pragma once

#include "layoutfile/record_codec.h"

namespace layoutfile {

// What the checks before a save look at.
struct DesignCounts
{
    qsizetype controls = 0;
    qsizetype trackMaps = 0;
    qsizetype fullFrameSources = 0; // video sources of divisor 1: they act as background
};

// The first complaint that the Save command shows; empty when there is none.
QString saveComplaint(const DesignCounts &counts);

// Whether two of these video source records name the same camera.
bool sharesCamera(const std::vector<LayoutRecord> &sources);

} // namespace layoutfile
