#pragma once

#include <QString>

#include <optional>

namespace controls {

// Estimate of the share of the recorder's processor that a layout takes, in percent: a sum of one term for
// each control. The coefficients are settled.
namespace complexity {

double videoSource(double divisor); // throws RunTimeError for 0
double gauge(double pointerWidth, double pointerLength);
// `edge` in twips and `extent` in pixels, as the control reports them along its long side: that their sum is
// divided by the twips per pixel is deliberate.
double barGraph(double edge, double extent, double barWidth, float twipsPerPixel);
// Outer size in twips; a bitmap that is bound to a variable costs nothing.
double bitmap(double outerWidth, double outerHeight, double variable, float tx, float ty);
double digitalDisplay(double fontSize, qsizetype textLength);
double textTag(double fontSize, qsizetype textLength);
double trackMap(double width, double height, bool mapShown);

} // namespace complexity

// The figure that is shown and tested: rounded to a whole number, halves to even.
int shownLoad(double complexity);

// The question that a save asks for this load, or nothing up to 15 %.
std::optional<QString> overloadQuestion(int load);

} // namespace controls
