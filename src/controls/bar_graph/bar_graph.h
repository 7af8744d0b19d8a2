#pragma once

#include "controls/overlay_control.h"

namespace controls {

enum class BarType : quint8 { Horizontal = 0, Vertical = 1 };

// The bar graph: a solid bar that grows along a line from curMin to curMax, which may be the lower one.
struct BarGraphValues : ControlValues
{
    qint32 curVarID = 0;
    quint8 curBarWidth = 0; // thickness, pixels
    common::Colour curColour{255};
    float curMin = 0;
    float curMax = 100;
    float curDefaultVal = 0;
    quint8 curBarType = 0; // BarType; other values count as vertical
    qint16 curLeft = 0;    // left edge of the bar, twips
    qint16 curTop = 0;     // top edge of the bar, twips
    quint8 curAlfa = 255;
    qint32 curColourVariable = 0;
    float curColourVarMin = 0;
    float curColourVarMax = 0;

    bool isHorizontal() const { return curBarType == 0; }
};

const PropertyTable &barGraphProperties();

// The bar as it stands on a canvas of this standard: its box sized by the bar width and a length in pixels (0
// or less keeps the length) and pulled in at the right and bottom edge. Throws RunTimeError when its place
// does not fit.
BarGraphValues placed(BarGraphValues values, qint16 length, recorder::VideoStandard standard,
                      const platform::Screen &screen);

// The filled part of a bar that occupies `area` at its default value; limited to the area.
QRectF filledPart(const BarGraphValues &values, const QRectF &area);

class BarGraph final : public ControlOf<BarGraphValues>
{
public:
    using ControlOf::ControlOf;

    // Computed: the bar's extent in pixels.
    float curWidth() const { return innerWidth(box(), screen()); }
    float curHeight() const { return innerHeight(box(), screen()); }

    // Takes the place that placed() gives it.
    void AssignProperties(qint16 length);
    void AssignProperties() override { AssignProperties(0); }

    void updatePosition() override;
    void applyResize() override;
    Box resizedBox(const Box &wanted, Handle handle) const override;
    void nudge(int dx, int dy) override;
    void applyInitialProperties() override;
    void showSample() override { m_values.curDefaultVal = sampleReading(m_values.curMin, m_values.curMax); }
    QSizeF startSize() const override { return {1950, 450}; }
    void paint(Composition &onto) const override;
    double complexity() const override;

protected:
    const PropertyTable &properties() const override { return barGraphProperties(); }
};

} // namespace controls
