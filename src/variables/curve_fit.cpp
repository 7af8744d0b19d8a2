#include "variables/curve_fit.h"

#include "common/number_parser.h"
#include "common/rounding.h"
#include "common/run_time_error.h"
#include "variables/least_squares.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <set>

namespace variables {

using namespace Qt::StringLiterals;

namespace {

constexpr int HighestDegree = 3;
constexpr double CoefficientStep = 1e8; // eight decimals
constexpr double DeviationStep = 1e3;   // three decimals

double finite(double value)
{
    if (!std::isfinite(value))
        throw common::RunTimeError(u"Overflow"_s);
    return value;
}

double rounded(double value, double step) { return finite(common::roundHalfEven(value * step) / step); }

double valueAt(const Coefficients &coefficients, double x)
{
    double value = 0;
    double power = 1;
    for (const double coefficient : {coefficients.c0, coefficients.c1, coefficients.c2, coefficients.c3}) {
        value += coefficient * power;
        power *= x;
    }
    return value;
}

// The elimination meets a zero only when rounding is kind; so what cannot be solved is told beforehand.
bool hasSingleCurve(const QList<QPointF> &points, int degree)
{
    std::set<double> distinct;
    for (const QPointF &point : points)
        distinct.insert(point.x());
    return static_cast<int>(distinct.size()) > degree;
}

double Standard_deviation(const QList<QPointF> &points, const Coefficients &coefficients, int degree)
{
    const qsizetype freedom = points.size() - degree - 1;
    if (freedom < 1)
        return 0;
    double sum = 0;
    for (const QPointF &point : points)
        sum += std::pow(valueAt(coefficients, point.x()) - point.y(), 2);
    return std::sqrt(sum / static_cast<double>(freedom));
}

} // namespace

QList<QPointF> fitPoints(const QList<QStringList> &rows)
{
    QList<QPointF> points;
    for (const QStringList &cells : rows) {
        if (!cells.value(0).trimmed().isEmpty() && !cells.value(1).trimmed().isEmpty())
            points.append({finite(common::parseNumber(cells[0])), finite(common::parseNumber(cells[1]))});
    }
    return points;
}

int fitDegree(qsizetype points) { return std::min(static_cast<int>(points) - 1, HighestDegree); }

std::optional<QString> fitComplaint(const QList<QPointF> &points, int degree)
{
    if (points.size() > MostFitPoints)
        return u"Maxmium of 25 data points"_s;
    if (points.isEmpty())
        return u"Not enough data"_s;
    if (points.size() < degree + 1)
        return u"Not Enough Data"_s;
    if (!hasSingleCurve(points, degree))
        return u"Not enough different values of Input X"_s;
    return std::nullopt;
}

CurveFit fitCurve(const QList<QPointF> &points)
{
    const int degree = fitDegree(points.size());
    std::vector<double> x;
    std::vector<double> y;
    for (const QPointF &point : points) {
        x.push_back(point.x());
        y.push_back(point.y());
    }
    std::vector<double> c = LstSqrN(Gene_Coeffs(x, static_cast<std::size_t>(degree)), y);
    c.resize(HighestDegree + 1);
    for (double &coefficient : c)
        coefficient = rounded(coefficient, CoefficientStep);

    CurveFit fit{{c[3], c[2], c[1], c[0]}, 0};
    fit.standardDeviation = rounded(Standard_deviation(points, fit.coefficients, degree), DeviationStep);
    return fit;
}

QString fitText(const CurveFit &fit)
{
    const QString deviation = QString::number(fit.standardDeviation, 'f', QLocale::FloatingPointShortest);
    return polynomialText(fit.coefficients) + "     std dev="_L1 + deviation;
}

QList<QPointF> curveSamples(const Coefficients &coefficients, double from, double to, int count)
{
    QList<QPointF> samples;
    for (int i = 0; i < count; ++i) {
        const double x = from + (to - from) * i / (count - 1);
        samples.append({x, valueAt(coefficients, x)});
    }
    return samples;
}

} // namespace variables
