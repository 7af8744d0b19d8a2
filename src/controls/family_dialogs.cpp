#include "controls/family_dialogs.h"

#include "controls/bar_graph/bar_graph_dialog.h"
#include "controls/bitmap/bitmap_dialog.h"
#include "controls/custom_dial/custom_dial_dialog.h"
#include "controls/digital_display/digital_display_dialog.h"
#include "controls/gauge/gauge_dialog.h"
#include "controls/text_tag/text_tag_dialog.h"
#include "controls/track_map/track_map_dialog.h"
#include "controls/video_source/video_source_dialog.h"

#include <algorithm>

namespace controls {

namespace {

template <typename Control, typename Dialog>
void show(OverlayControl &control)
{
    Dialog dialog(static_cast<Control &>(control));
    dialog.exec();
}

struct DialogRow
{
    ControlType type;
    void (*show)(OverlayControl &);
};

constexpr DialogRow Dialogs[] = {
    {ControlType::TextTag, show<TextTag, TextTagDialog>},
    {ControlType::DigitalDisplay, show<DigitalDisplay, DigitalDisplayDialog>},
    {ControlType::BarGraph, show<BarGraph, BarGraphDialog>},
    {ControlType::Bitmap, show<Bitmap, BitmapDialog>},
    {ControlType::CustomDial, show<CustomDial, CustomDialDialog>},
    {ControlType::Gauge, show<Gauge, GaugeDialog>},
    {ControlType::TrackMap, show<TrackMap, TrackMapDialog>},
    {ControlType::VideoSource, show<VideoSource, VideoSourceDialog>},
};

} // namespace

void showPropertyDialog(OverlayControl &control)
{
    // Every family has its row.
    std::ranges::find(Dialogs, control.family().type, &DialogRow::type)->show(control);
}

} // namespace controls
