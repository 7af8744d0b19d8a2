#include "controls/factories.h"

#include "controls/bar_graph/bar_graph.h"
#include "controls/bitmap/bitmap.h"
#include "controls/custom_dial/custom_dial.h"
#include "controls/digital_display/digital_display.h"
#include "controls/gauge/gauge.h"
#include "controls/text_tag/text_tag.h"
#include "controls/track_map/track_map.h"
#include "controls/video_source/video_source.h"

#include <algorithm>

namespace controls {

namespace {

template <typename Control>
std::shared_ptr<OverlayControl> make(const Family &family, ControlHost &host)
{
    return std::make_shared<Control>(family, host);
}

struct FactoryRow
{
    ControlType type;
    ControlFactory create;
};

constexpr FactoryRow Factories[] = {
    {ControlType::TextTag, make<TextTag>},       {ControlType::DigitalDisplay, make<DigitalDisplay>},
    {ControlType::BarGraph, make<BarGraph>},     {ControlType::Bitmap, make<Bitmap>},
    {ControlType::CustomDial, make<CustomDial>}, {ControlType::Gauge, make<Gauge>},
    {ControlType::TrackMap, make<TrackMap>},     {ControlType::VideoSource, make<VideoSource>},
};

} // namespace

ControlFactory factoryOf(ControlType type)
{
    // Every family has its row.
    return std::ranges::find(Factories, type, &FactoryRow::type)->create;
}

} // namespace controls
