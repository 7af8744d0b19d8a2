#pragma once

#include "common/colour.h"
#include "common/fixed_string.h"
#include "graphics/outline_font.h"

#include <QImage>

namespace graphics {

enum class TicStyle : quint8 { Rectangle = 0, Ellipse = 1, Triangle = 2, Diamond = 3 };

// What decides the face of a custom dial, under the names of the control's properties. Places and sizes that
// are called relative are shares of half of the dial's smaller side; angles are degrees, 0 at twelve o'clock,
// clockwise.
struct DialLook
{
    static constexpr qint16 UsualFontSize = 18; // points

    qint16 curMinAngle = -140; // at curMin
    qint16 curMaxAngle = 140;  // at curMax
    float curMin = 0;
    float curMax = 240;
    quint8 curTicStyle = 0;    // TicStyle; other values count as rectangles
    float curTicDelta = 20;    // from tic to tic, units of the scale
    float curTicInner = 0.7F;  // relative
    float curTicOuter = 0.85F; // relative
    float curTicWidth = 0.02F; // relative
    quint8 curTicLabelsOnOff = 1;
    common::Colour curTicColour{0xFFFFFF}; // of the labels too
    common::FixedString<30> curFontName{QStringLiteral("MS Sans Serif")};
    qint16 curFontSize = UsualFontSize; // points; the usual size where it is 0 or less
    quint8 curFontBold = 1;
    quint8 curFontItalic = 0;
    quint8 curFontStrikethrough = 0;
    quint8 curFontUnderline = 0;
    quint8 curCaptions = 1;
    common::FixedString<30> curCaption{QStringLiteral("SPEED")};
    float curCaptionLeft = 0;    // relative, from the middle of the dial to that of the caption
    float curCaptionTop = 0.34F; // relative, downwards
    common::Colour curCaptionColour{0xFFFFFF};
    quint8 curAnnulars = 1;
    float curAnnularStart = 160; // units of the scale
    float curAnnularStop = 240;
    float curAnnularInner = 0.75F; // relative
    float curAnnularOuter = 0.85F; // relative
    common::Colour curAnnularColour{0x00FFFF};
    common::Colour curBkColour{0};
    quint8 curTransparent = 0;

    QString face() const { return static_cast<const QString &>(curFontName).trimmed(); }
    FontStyle style() const;
    bool operator==(const DialLook &) const = default;
};

// The face without its pointer, of exactly this size (pixels): QImage::Format_RGB32, the back colour wherever
// nothing is drawn. The same look and font give the same pixels on every machine. A null image for an empty
// size.
QImage dialFace(const DialLook &look, const OutlineFont &font, QSize size);

// How opaque the face is, as a grey picture. Transparent dials are so where a pixel has the back colour, the
// others outside of their circle; the rest is opaque.
QImage dialAlpha(const DialLook &look, const QImage &face);

} // namespace graphics
