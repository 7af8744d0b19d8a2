#pragma once

#include <QtGlobal>

namespace controls {

// Type codes of the overlay control families. 5 and 7 are not used; codes reach files and the clipboard.
enum class ControlType : qint16 {
    None = 0,
    Gauge = 1,
    DigitalDisplay = 2,
    Bitmap = 3,
    VideoSource = 4,
    BarGraph = 6,
    TextTag = 8,
    TrackMap = 9,
    CustomDial = 10
};

} // namespace controls
