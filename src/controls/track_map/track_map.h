#pragma once

#include "controls/placed_control.h"

namespace controls {

// The track map: a box in which the recorder draws the path driven so far, with a marker at its end, upon a
// map if that is wanted.
struct TrackMapValues : ControlValues
{
    qint16 curLeftCoord = 0; // of the outer box, canvas pixels
    qint16 curTopCoord = 0;
    qint16 curWidth = 0; // within the editing frame, pixels
    qint16 curHeight = 0;
    quint8 curBorderWidth = 2; // pixels
    common::Colour curBordercolor{0};
    quint8 curBorderVisible = 1;
    quint8 curMarkerWidth = 7; // pixels
    common::Colour curMarkercolor{0x4080FF};
    quint8 curMarkerVisible = 1;
    quint8 curLineWidth = 2; // pixels
    common::Colour curLinecolor{0xB0B0B0};
    quint8 curAlfa = 204;
    quint8 curFadingRate = 0;  // 0 low, 1 medium, 2 high
    qint16 curIniWidth = 100;  // initial scale: width of the track's area
    qint16 curIniHeight = 100; // initial scale: its height
    quint8 curAutoRescale = 0; // whether the scale follows the track
    quint8 curMapEnable = 0;
    quint8 curMapType = 0;        // 0 satellite, 1 road
    quint8 curMapDetailLevel = 0; // 0 high, 1 medium, 2 low
    quint8 curMapAlpha = 204;
};

const PropertyTable &trackMapProperties();

// The box as it stands on a canvas of this standard: sized by its properties and pulled in at the right and
// bottom edge. Throws RunTimeError when its place does not fit or its size is negative.
TrackMapValues placed(TrackMapValues values, recorder::VideoStandard standard,
                      const platform::Screen &screen);

class TrackMap final : public ControlOf<TrackMapValues, PlacedControl>
{
public:
    using ControlOf::ControlOf;

    void AssignProperties() override;

    void applyResize() override { updatePosition(); }
    void fitCanvasHeight(float height) override { pullUp(height); }
    void applyInitialProperties() override;
    QSizeF startSize() const override { return {1650, 1650}; }
    void paint(Composition &onto) const override;
    QMarginsF margins() const override { return {}; }
    QRect drawnArea() const override { return outerRect(); }
    double complexity() const override;

protected:
    const PropertyTable &properties() const override { return trackMapProperties(); }
    void sizeChanged() override;
    void settle() override { sizeChanged(); }
    Corner corner() override { return {m_values.curLeftCoord, m_values.curTopCoord}; }
    float inset() const override { return 0; }
};

} // namespace controls
