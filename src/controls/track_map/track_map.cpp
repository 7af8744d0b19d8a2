#include "controls/track_map/track_map.h"

#include "controls/complexity.h"
#include "platform/guards.h"

namespace controls {

using common::toInteger;
using platform::skipFailures;

namespace {

using V = TrackMapValues;
constexpr std::array Rows{
    property<&V::curBorderWidth>("curBorderWidth", "newBorderWidth"),
    property<&V::curBordercolor>("curBordercolor", "NewBordercolor"),
    property<&V::curBorderVisible>("curBorderVisible", "NewBorderVisible"),
    property<&V::curMarkerWidth>("curMarkerWidth", "newMarkerWidth"),
    property<&V::curMarkercolor>("curMarkercolor", "NewMarkercolor"),
    property<&V::curMarkerVisible>("curMarkerVisible", "NewMarkerVisible"),
    property<&V::curLineWidth>("curLineWidth", "newLineWidth"),
    property<&V::curLinecolor>("curLinecolor", "NewLinecolor"),
    property<&V::curAlfa>("curAlfa", "newAlfa"),
    property<&V::curFadingRate>("curFadingRate", "newFadingRate"),
    property<&V::curIniWidth>("curIniWidth", "newIniWidth"),
    property<&V::curIniHeight>("curIniHeight", "newIniHeight"),
    property<&V::curAutoRescale>("curAutoRescale", "newAutoRescale"),
    property<&V::curMapEnable>("curMapEnable", "newMapEnable"),
    property<&V::curMapType>("curMapType", "newMapType"),
    property<&V::curMapDetailLevel>("curMapDetailLevel", "newMapDetailLevel"),
    property<&V::curMapAlpha>("curMapAlpha", "newMapAlpha"),
    property<&V::curLeftCoord>("curLeftCoord", "newLeftCoord").notSerialised(),
    property<&V::curTopCoord>("curTopCoord", "newTopCoord").notSerialised(),
    property<&V::curWidth>("curWidth", "newWidth").notSerialised(),
    property<&V::curHeight>("curHeight", "NewHeight").notSerialised(),
};

} // namespace

const PropertyTable &trackMapProperties()
{
    static constexpr PropertyTable Table{Rows};
    return Table;
}

TrackMapValues placed(TrackMapValues values, recorder::VideoStandard standard, const platform::Screen &screen)
{
    if (values.curWidth < 0 || values.curHeight < 0)
        throw common::RunTimeError(QStringLiteral("Invalid property value"));
    Box &box = values.box;
    box.Width = screen.toTwipsX(values.curWidth) + BothFrames;
    box.Height = screen.toTwipsY(values.curHeight) + BothFrames;
    const QPointF corner =
        keptOnCanvas(QPoint(values.curLeftCoord, values.curTopCoord), box, 0, standard, screen);
    values.curLeftCoord = toInteger<qint16>(corner.x());
    values.curTopCoord = toInteger<qint16>(corner.y());
    box.Left = screen.toTwipsX(values.curLeftCoord);
    box.Top = screen.toTwipsY(values.curTopCoord);
    return values;
}

void TrackMap::AssignProperties()
{
    const TrackMapValues standing = placed(m_values, host().VideoType(), screen());
    set(standing);
    setBox(standing.box);
    raiseReposition();
}

void TrackMap::sizeChanged()
{
    skipFailures([&] { m_values.curWidth = toInteger<qint16>(innerWidth(box(), screen())); });
    skipFailures([&] { m_values.curHeight = toInteger<qint16>(innerHeight(box(), screen())); });
}

void TrackMap::applyInitialProperties()
{
    set(TrackMapValues());
    sizeChanged();
    updatePosition();
}

// The recorder draws in the outer box. On the canvas the editing frame covers its edges, so the border stands
// within the frame.
void TrackMap::paint(Composition &onto) const
{
    const bool designed = onto.drawing == Drawing::Designed;
    const QRect box = designed ? innerRect() : outerRect();
    CompositionPainter painter(onto);
    if (designed)
        painter.fillRect(box, toQColor(m_values.backColour.packed()));
    if (m_values.curBorderVisible == 0)
        return;
    const int width = m_values.curBorderWidth;
    for (const QRect &side : QRegion(box) - box.adjusted(width, width, -width, -width))
        painter.fillRect(side, toQColor(m_values.curBordercolor.packed()));
}

double TrackMap::complexity() const
{
    return complexity::trackMap(m_values.curWidth, m_values.curHeight, m_values.curMapEnable != 0);
}

} // namespace controls
