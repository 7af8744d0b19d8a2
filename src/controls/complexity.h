#pragma once

#include "platform/screen.h"

#include <QString>

#include <optional>

namespace controls {

// Estimate of the share of the recorder's processor that a layout takes, in percent: a sum of one term for
// each control. The coefficients are settled.
namespace complexity {

double videoSource(double divisor); // throws RunTimeError for 0
double gauge(double pointerWidth, double pointerLength);
// The ends along its long side, pixels.
double barGraph(double start, double end, double barWidth);
// Outer size in twips; a bitmap that is bound to a variable costs nothing.
double bitmap(double outerWidth, double outerHeight, double variable, const platform::Screen &screen);
double digitalDisplay(double fontSize, qsizetype textLength);
double textTag(double fontSize, qsizetype textLength);
double trackMap(double width, double height, bool mapShown);

} // namespace complexity

// The figure that is shown and tested: rounded to a whole number, halves to even.
int shownLoad(double complexity);

// The question that a save asks for this load, or nothing up to 15 %.
std::optional<QString> overloadQuestion(int load);

} // namespace controls
