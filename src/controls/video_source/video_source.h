#pragma once

#include "controls/placed_control.h"

namespace controls {

// The live picture of one camera: behind everything else, over the whole frame, or as a picture in the
// picture.
struct VideoSourceValues : ControlValues
{
    quint8 curTopBorderWidth = 5; // cropped off the picture, pixels
    quint8 curBottomBorderWidth = 5;
    quint8 curLeftBorderWidth = 5;
    quint8 curRightBorderWidth = 5;
    quint8 curDivisor = 4; // of the whole frame; 1 is the background
    common::Colour curBordercolor{0};
    quint8 curBorderVisible = 0;
    quint8 curCameraNo = 0; // from 0; shown from 1
    quint8 curMirror = 0;
    quint8 curBorderWidth = 0; // thickness, pixels
    quint8 curBrightness = 128;
    quint8 curContrast = 128;
    quint8 curHue = 0; // modulo 256
    quint8 curSaturation = 128;
    float curLowerLimit = 0;
    float curUpperLimit = 0;
    float curDefaultVal = 0;
    qint32 curVarID = 0;    // hides the video
    qint16 curTopCoord = 0; // of the outer box, canvas pixels
    qint16 curLeftCoord = 0;

    bool isBackground() const { return curDivisor == 1; }
};

const PropertyTable &videoSourceProperties();

inline constexpr int MarkerDivisor = 8; // of the whole frame: the background's marker
inline constexpr int PlaceStep = 16;    // pixels; a picture in the picture begins at a multiple of it

// The size on a canvas of this standard, pixels: a share of the whole frame. The background, and what no
// divisor can be, has its marker's.
QSizeF sourceSize(quint8 divisor, recorder::VideoStandard standard);

// The source as it stands on a canvas of this standard: its box sized by the divisor at its coordinates.
VideoSourceValues placed(VideoSourceValues values, recorder::VideoStandard standard,
                         const platform::Screen &screen);

class VideoSource final : public ControlOf<VideoSourceValues, PlacedControl>
{
public:
    using ControlOf::ControlOf;

    void AssignProperties() override;

    void standardChanged() override;
    void fitCanvasHeight(float height) override;
    QMarginsF overhang() const override;
    // What is cropped off; nothing of the background's marker.
    QMarginsF margins() const override { return isFullFrame() ? QMarginsF() : overhang(); }
    void applyInitialProperties() override;
    QSizeF startSize() const override;
    void paint(Composition &onto) const override;
    QRect drawnArea() const override { return outerRect(); }
    double complexity() const override;
    bool isFullFrame() const override { return m_values.isBackground(); }

protected:
    const PropertyTable &properties() const override { return videoSourceProperties(); }
    GripSet grips() const override { return GripSet::None; } // the divisor decides the size
    void settle() override { standardChanged(); }            // another one may be in force now
    Corner corner() override { return {m_values.curLeftCoord, m_values.curTopCoord}; }
    float inset() const override { return 0; }
};

} // namespace controls
