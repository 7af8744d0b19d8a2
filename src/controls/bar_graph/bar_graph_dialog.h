#pragma once

#include "controls/bar_graph/bar_graph.h"
#include "controls/property_dialog.h"

namespace controls {

// The line of a bar of this type as the dialog shows it. Places between two pixels are shown as they are, so
// that an Apply leaves the bar where it stands.
struct BarLine
{
    float startX, startY, endX, endY, barWidth; // pixels
};
BarLine barLine(const BarGraph &bar, bool isHorizontal);

// A bar with the line that its place is typed as.
struct BarOnLine : BarGraphValues, BarLine
{
};

std::optional<forms::Verdict> validateBarGraph(const forms::Typed &typed);

// "Bar Graph Properties".
class BarGraphDialog final : public PropertyDialog<BarGraph, BarOnLine>
{
public:
    explicit BarGraphDialog(BarGraph &bar);

protected:
    std::optional<forms::Verdict> validate(const forms::Typed &typed) const override
    {
        return validateBarGraph(typed);
    }
    void set(BarOnLine &values) override;
    void applied() override;

private:
    qint16 m_length = 0; // of the applied bar, pixels
};

} // namespace controls
