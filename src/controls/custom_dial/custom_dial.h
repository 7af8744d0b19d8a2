#pragma once

#include "controls/gauge/gauge.h"
#include "controls/placed_control.h"
#include "graphics/dial_face.h"
#include "graphics/plane_picture.h"

namespace controls {

// The custom dial: a round face, drawn once, and a pointer that turns upon it like the needle of a gauge.
struct CustomDialValues : ControlValues, graphics::DialLook
{
    qint32 curVarID = 0;
    qint16 curPointerLength = 65; // pixels
    qint16 curPointerWidth = 3;   // pixels
    common::Colour curPointerColour{255};
    float curDefaultVal = 0; // where the pointer stands while nothing is recorded
    quint8 curAlfa = 153;    // of the face
    qint16 curCenterX = 0;   // left edge of the face, canvas pixels
    qint16 curCenterY = 0;   // its top edge
    qint16 curWidth = 0;     // of the face, pixels; 0 keeps the size
    qint16 curHeight = 0;
};

const PropertyTable &customDialProperties();

// The face of a dial in this box, canvas pixels: never larger than the canvas.
QRect faceRect(const Box &box, const platform::Screen &screen);
// The gauge that moves the pointer.
GaugeValues pointerOf(const CustomDialValues &values, const platform::Screen &screen);
// The dial as it stands on a canvas of this standard: its box sized by its properties and pulled in at the
// right and bottom edge. Throws RunTimeError when its place does not fit or its size is negative.
CustomDialValues placed(CustomDialValues values, recorder::VideoStandard standard,
                        const platform::Screen &screen);
// A face of this look and size as it is stored.
graphics::PlanePicture renderedFace(const graphics::DialLook &look, QSize size, ControlHost &host);

// Draws the dial with this face and its pointer.
void paintDial(const CustomDialValues &values, const graphics::PlanePicture &face, const ControlHost &host,
               Composition &onto);

class CustomDial final : public ControlOf<CustomDialValues, PlacedControl>
{
public:
    using ControlOf::ControlOf;

    // The face as it stands.
    const graphics::PlanePicture &face() const;
    // Takes a face from a file, which stands for this look and size.
    void keepFace(const graphics::PlanePicture &face);

    void AssignProperties() override;

    void takeOver(const OverlayControl &source) override;
    void applyResize() override { updatePosition(); }
    Box resizedBox(const Box &wanted, Handle handle) const override;
    void standardChanged() override;
    void fitCanvasHeight(float height) override { pullUp(height); }
    void applyInitialProperties() override;
    void showSample() override { m_values.curDefaultVal = sampleReading(m_values.curMin, m_values.curMax); }
    QSizeF startSize() const override { return {3150, 3150}; }
    void paint(Composition &onto) const override;
    QRect drawnArea() const override;
    double complexity() const override { return 0; } // however large it is: deliberate

protected:
    const PropertyTable &properties() const override { return customDialProperties(); }
    void sizeChanged() override;
    void settle() override { sizeChanged(); }
    Corner corner() override { return {m_values.curCenterX, m_values.curCenterY}; }

private:
    // A face, and what it was made for.
    struct Face
    {
        graphics::DialLook look;
        QSize size;
        graphics::PlanePicture picture;
    };

    Face m_kept;         // from a file
    mutable Face m_face; // made last
};

} // namespace controls
