#pragma once

#include "controls/placed_control.h"

namespace controls {

enum class TextAlign : quint8 { Left = 0, Right = 1 };

// What the families have in common that show one line of text in a font of the recorder.
struct TextValues : ControlValues
{
    TextValues(TextAlign usualAlign, qint16 usualSize, quint32 usualColour)
        : align(static_cast<quint8>(usualAlign)), curFontSize(usualSize), curColour(usualColour)
    {
    }

    qint32 curVarID = 0;
    qint16 curCenterX = 0; // left edge, canvas pixels; a negative one that is written is the right edge
    qint16 curCenterY = 0; // top edge, canvas pixels
    QString text;          // that is drawn
    quint8 align;          // TextAlign; other values count as right
    QString face = QStringLiteral("Arial");
    qint16 curFontSize; // points
    quint8 curBold = 0;
    quint8 curItalic = 0;
    quint8 curStrikethrough = 0;
    quint8 curUnderline = 0;
    common::Colour curColour;
    common::Colour curBkColour; // kept; a text stands on what lies below it
    quint8 curAlfa = 255;
    float curLowerLimit = 0;
    float curUpperLimit = 0;
    float curDefaultVal = 0;
    qint32 curColourVariable = 0;
    float curColourVarMin = 0;
    float curColourVarMax = 0;

    bool isLeftAligned() const { return align == static_cast<quint8>(TextAlign::Left); }
    graphics::FontRequest font() const;
};

// Gives a text of this extent (pixels) its box: a right edge becomes the left one that it leads to, and the
// box is pulled in at the right and bottom edge of the canvas. Throws RunTimeError when a place does not fit.
void place(TextValues &values, QSize extent, recorder::VideoStandard standard,
           const platform::Screen &screen);

// A control that shows a line of text. The text decides its size, so it has no grips.
class TextControl : public PlacedControl
{
public:
    using PlacedControl::PlacedControl;

    // Works out what follows from the values: the text that is shown, its size and its place. Throws
    // RunTimeError when a place does not fit.
    void arrange(TextValues &values) const;
    void AssignProperties() override;

    void fitCanvasHeight(float height) override { pullUp(height); } // the text decides the size
    void nudge(int dx, int dy) override;
    QSizeF startSize() const override { return {BothFrames, BothFrames}; } // until its text is known
    void paint(Composition &onto) const override;

protected:
    // The text that the values lead to.
    virtual QString shownText(const TextValues &values) const = 0;
    // Points; serves where the values' font size does not.
    virtual int usualSize() const = 0;
    GripSet grips() const override { return GripSet::None; }
    Corner corner() override { return {textValues().curCenterX, textValues().curCenterY}; }
    void settle() override { AssignProperties(); }
    // Takes the box that arrange() works out.
    void takeBox();

private:
    TextValues &textValues() { return static_cast<TextValues &>(values()); }
    const TextValues &textValues() const { return static_cast<const TextValues &>(values()); }
    std::shared_ptr<const graphics::TextFont> fontOf(const TextValues &values) const;
};

} // namespace controls
