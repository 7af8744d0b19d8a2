#pragma once

#include "controls/placed_control.h"
#include "graphics/plane_picture.h"

namespace controls {

// The bitmap: a picture with an alpha picture of the same size, which a variable may hide or fade.
struct BitmapValues : ControlValues
{
    quint8 curAlfa = 255;    // of the whole picture
    QString curFileName;     // of the picture's copy in the picture folder; blank for none
    QString curAlfaFileName; // of the alpha picture's copy
    qint32 curVarID = 0;     // hides the bitmap
    float curLowerLimit = 0;
    float curUpperLimit = 0;
    float curDefaultVal = 0;
    quint8 curZorder = 1; // against other bitmaps: 0 below, 1 above
    qint32 curAlfaVariable = 0;
    float curAlfaVarMin = 0;
    float curAlfaVarMax = 0;
    float curAlfaDefaultVal = 0;
    qint16 curTopCoord = 0; // of the picture, canvas pixels
    qint16 curLeftCoord = 0;
    graphics::PlanePicture picture;
};

const PropertyTable &bitmapProperties();

// The bitmap as it stands on the canvas: its box sized by its planes, if it has any, at its coordinates.
BitmapValues placed(BitmapValues values, const platform::Screen &screen);

class Bitmap final : public ControlOf<BitmapValues, PlacedControl>
{
public:
    using ControlOf::ControlOf;

    void AssignProperties() override;

    void takeOver(const OverlayControl &source) override;
    void applyInitialProperties() override;
    void showSample() override;
    QSizeF startSize() const override { return {1650, 1650}; }
    void paint(Composition &onto) const override;
    QRect drawnArea() const override;
    double complexity() const override;

protected:
    const PropertyTable &properties() const override { return bitmapProperties(); }
    GripSet grips() const override { return GripSet::None; } // the picture decides the size
    Corner corner() override { return {m_values.curLeftCoord, m_values.curTopCoord}; }
    void settle() override;
};

} // namespace controls
