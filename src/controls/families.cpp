#include "controls/families.h"

#include <algorithm>
#include <array>

namespace controls {

namespace {

constexpr std::array<Family, 8> Families{{
    {ControlType::VideoSource, 'd', "QLVIDEOSOURCE", "Video Source", "Video Source", "mnuVideoSource",
     "dVIDEOSOURCE", "VideoSource.bmp", "videosource"},
    {ControlType::Bitmap, 'c', "QLBITMAP", "Bitmap", "Bitmap", "mnuBitmap", "cBITMAP", "bitmap.bmp",
     "bitmap"},
    {ControlType::TextTag, 'h', "QLTEXTTAG", "Simple Text", "Simple Text", "mnuSimpleText", "hTEXTTAG",
     "texttag.bmp", "texttag"},
    {ControlType::DigitalDisplay, 'b', "QLDIGITALDISPLAY", "Digital Display", "Digital Display",
     "mnuDigitalDisplay", "bDIGITALDISPLAY", "digitaldisplay.bmp", "digitaldisplay"},
    {ControlType::BarGraph, 'f', "QLBARGRAPH", "Bar Graph", "Bar graph", "mnuBarGraph", "fBARGRAPH",
     "BarGraph.bmp", "bargraph"},
    {ControlType::Gauge, 'a', "QLAGAUGE", "Analogue Dial", "Analogue Dial", "mnuAnalogDial", "aANALOGDIAL",
     "agauge.bmp", "agauge"},
    {ControlType::TrackMap, 'i', "QLTRACKMAP", "Track Map", "Track Map", "mnuTrackMap", "iTRACKMAP",
     "TrackMap.bmp", "trackmap"},
    {ControlType::CustomDial, 'j', "QLCUSTOMDIAL", "Custom Dial", "Custom Dial", "mnuCustomDial",
     "jCUSTOMDIAL", "CustomDial.bmp", "customdial"},
}};

template <typename Test>
const Family *firstFamily(Test test)
{
    const auto found = std::find_if(Families.begin(), Families.end(), test);
    return found == Families.end() ? nullptr : &*found;
}

} // namespace

std::span<const Family> families() { return Families; }

const Family *familyOf(ControlType type)
{
    return firstFamily([type](const Family &family) { return family.type == type; });
}

const Family *familyOfKey(const QString &key)
{
    return firstFamily([&](const Family &family) { return key.startsWith(QLatin1Char(family.letter)); });
}

} // namespace controls
