#include "controls/text/text_control.h"

#include "graphics/modDrawFont.h"

#include <algorithm>

namespace controls {

using common::toInteger;

namespace {

float contentLeft(const Box &box, const platform::Screen &screen)
{
    return screen.toPixelsX(box.Left + FrameTwips);
}

// A text without extent leaves the size as it is, but for a control that has none yet.
float sized(float before, float content)
{
    return content > 0 || before < BothFrames ? content + BothFrames : before;
}

// The lowest left edge. Where a record holds the left edge, a negative one would be a right edge; where it
// holds the right edge, that has to stay positive.
float lowestLeft(const TextValues &values, float width) { return values.isLeftAligned() ? 0 : 1 - width; }

// A place left of the canvas that the text already stands at is no right edge.
bool isRightEdge(const TextValues &values, const platform::Screen &screen)
{
    return values.curCenterX < 0 &&
           values.curCenterX != common::toIntegerClamped<qint16>(contentLeft(values.box, screen));
}

} // namespace

graphics::FontRequest TextValues::font() const
{
    return {face, curFontSize, {curBold != 0, curItalic != 0, curStrikethrough != 0, curUnderline != 0}};
}

void place(TextValues &values, QSize extent, recorder::VideoStandard standard, const platform::Screen &screen)
{
    Box box = values.box;
    box.Width = sized(box.Width, screen.toTwipsX(static_cast<float>(extent.width())));
    box.Height = sized(box.Height, screen.toTwipsY(static_cast<float>(extent.height())));
    const float width = innerWidth(box, screen);
    const float left = isRightEdge(values, screen) ? -values.curCenterX - width : values.curCenterX;
    const QPointF corner =
        pulledInto({left, static_cast<double>(values.curCenterY)}, box, FrameTwips, standard, screen);
    const auto centreX = toInteger<qint16>(std::max(corner.x(), double{lowestLeft(values, width)}));
    const auto centreY = toInteger<qint16>(corner.y());
    box.Left = screen.toTwipsX(centreX) - FrameTwips;
    box.Top = screen.toTwipsY(centreY) - FrameTwips;
    values.curCenterX = centreX;
    values.curCenterY = centreY;
    values.box = box;
}

std::shared_ptr<const graphics::TextFont> TextControl::fontOf(const TextValues &values) const
{
    return host().textFont(values.font(), usualSize());
}

void TextControl::arrange(TextValues &values) const
{
    values.text = shownText(values);
    const auto font = fontOf(values);
    place(values, {font->penBehind(values.text), font->lineHeight()}, host().VideoType(), screen());
}

void TextControl::takeBox()
{
    arrange(textValues());
    redraw();
}

void TextControl::AssignProperties()
{
    takeBox();
    raiseReposition();
}

void TextControl::nudge(int dx, int dy)
{
    TextValues &values = textValues();
    const QPointF to = nudged(QPointF(values.curCenterX, values.curCenterY), {dx, dy}, FrameTwips);
    const double lowest{lowestLeft(values, innerWidth(box(), screen()))};
    values.curCenterX = toInteger<qint16>(std::max(to.x(), lowest));
    values.curCenterY = toInteger<qint16>(to.y());
    raiseReposition();
}

void TextControl::paint(Composition &onto) const
{
    const TextValues &values = textValues();
    graphics::drawText(*fontOf(values), values.text,
                       {innerRect().topLeft() - onto.corner, values.curColour.packed(), values.curAlfa},
                       onto.picture);
}

} // namespace controls
