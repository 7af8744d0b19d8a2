#pragma once

#include "variables/units.h"

#include <QList>
#include <QPointF>
#include <QStringList>

#include <optional>

namespace variables {

// A calibration table turned into a polynomial of degree 3 at most.

inline constexpr int MostFitPoints = 25;

// The points of a table as typed: a row counts when both of its cells hold text. Throws RunTimeError when a
// number is past all bounds.
QList<QPointF> fitPoints(const QList<QStringList> &rows);

// 3, or one less than the points where that is less.
int fitDegree(qsizetype points);

// What is said in place of an equation; nothing when there are points enough for their degree, not too many,
// and enough of them at different x.
std::optional<QString> fitComplaint(const QList<QPointF> &points, int degree);

struct CurveFit
{
    Coefficients coefficients; // rounded to eight decimals
    double standardDeviation = 0;
};

// The best polynomial through points that fitComplaint() has nothing to say about. Throws RunTimeError when
// it does not fit a number.
CurveFit fitCurve(const QList<QPointF> &points);

// The equation in x, and its standard deviation to three decimals.
QString fitText(const CurveFit &fit);

// The polynomial at `count` even steps from `from` to `to`.
QList<QPointF> curveSamples(const Coefficients &coefficients, double from, double to, int count);

} // namespace variables
