#pragma once

#include "controls/overlay_control.h"

namespace controls {

// The analogue gauge: one needle that turns about a pivot. Angles are degrees, 0 at twelve o'clock,
// clockwise.
struct GaugeValues : ControlValues
{
    qint32 curVarID = 0;
    qint16 curCenterX = 0;       // pivot, canvas pixels; 0 reads as half the box
    qint16 curCenterY = 0;       // pivot, canvas pixels; 0 reads as half the box
    quint8 curPointerLength = 0; // pixels
    quint8 curPointerWidth = 4;  // pixels; 0 keeps the pen's width
    common::Colour curColour{255};
    qint16 curMinAngle = -120; // at curMin
    qint16 curMaxAngle = 120;  // at curMax
    float curMin = 0;
    float curMax = 160;
    float curDefaultVal = 0; // drawn while nothing is recorded; not limited to curMin..curMax
    qint32 curColourVariable = 0;
    float curColourVarMin = 0;
    float curColourVarMax = 0;
};

const PropertyTable &gaugeProperties();

// The pivot as it is read, canvas pixels: half the box where none was set.
QPoint pivot(const GaugeValues &values, const platform::Screen &screen);
// The gauge with its pivot set to what it reads as.
GaugeValues withPivot(GaugeValues values, const platform::Screen &screen);
// The gauge as it stands on the canvas: its box sized by the length and centred on the pivot, which is set.
GaugeValues placed(GaugeValues values, const platform::Screen &screen);

// The needle of the gauge for its default value, canvas pixels. Nothing when the scale or the angles are
// empty.
struct Needle
{
    QPointF pivot;
    QPointF tail; // one pixel behind the pivot: where the canvas begins to draw
    QPointF tip;
};
std::optional<Needle> needleOf(const GaugeValues &values, recorder::VideoStandard standard,
                               const platform::Screen &screen);

// Draws that needle, and all that it is drawn on (canvas pixels).
void paintNeedle(const GaugeValues &values, recorder::VideoStandard standard, const platform::Screen &screen,
                 Composition &onto);
QRect needleArea(const GaugeValues &values, recorder::VideoStandard standard, const platform::Screen &screen);

class Gauge final : public ControlOf<GaugeValues>
{
public:
    using ControlOf::ControlOf;

    void AssignProperties() override;

    void updatePosition() override;
    void applyResize() override;
    Box resizedBox(const Box &wanted, Handle handle) const override;
    void fitCanvasHeight(float height) override;
    void nudge(int dx, int dy) override;
    void applyInitialProperties() override;
    void showSample() override { m_values.curDefaultVal = sampleReading(m_values.curMin, m_values.curMax); }
    QSizeF startSize() const override { return {1950, 1950}; }
    void paint(Composition &onto) const override;
    QRect drawnArea() const override;
    double complexity() const override;

protected:
    const PropertyTable &properties() const override { return gaugeProperties(); }
    GripSet grips() const override { return GripSet::Corners; }
    void sizeChanged() override;
    void settle() override;

private:
    void raiseReposition();
};

} // namespace controls
