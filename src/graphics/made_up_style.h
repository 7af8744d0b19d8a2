#pragma once

namespace graphics {

// How texts are drawn alike from all faces, in the recorder's fonts and on dials.

// Points become pixels as on a screen of this resolution, whatever the screen is.
inline constexpr int DotsPerInch = 96;
inline constexpr int PointsPerInch = 72;

// What a face lacks of a style is made up, in these shares of the size.
inline constexpr int StrokeDivisor = 24;           // bold strokes are wider by this part of the size
inline constexpr double Slant = 0.21;              // to the right, of the height above the base line
inline constexpr double UsualThickness = 0.07;     // of the two bars, where the face does not say
inline constexpr double UsualStrikethrough = 0.28; // the middle of the bar above the base line

} // namespace graphics
