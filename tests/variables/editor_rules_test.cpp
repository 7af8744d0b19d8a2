#include "common/run_time_error.h"
#include "variables/curve_fit.h"

#include <gtest/gtest.h>

namespace {

using namespace variables;

QList<QPointF> table(const Coefficients &c, const std::vector<double> &inputs)
{
    QList<QPointF> points;
    for (const double x : inputs)
        points.append({x, ((c.c3 * x + c.c2) * x + c.c1) * x + c.c0});
    return points;
}

TEST(CurveFit, findsThePolynomialThatMadeTheTable)
{
    const std::pair<Coefficients, std::vector<double>> cases[] = {
        {{0, 0, 0, 7}, {3}},
        {{0, 0, 2.5, -1}, {1, 3}},
        {{0, -0.5, 2, 10}, {0, 1, 5}},
        {{0.25, -1, 3, 8}, {-1, 0, 2, 2, 4, 5, 5}}, // repeated, but four different ones
        {{0, 0, 2, 1}, {0, 1, 2, 3, 4}},            // a cubic is fitted through the line
        {{0, 1, 0, 0}, {0.5, 1, 1.5, 2, 2.5, 3, 5}},
    };
    for (const auto &[polynomial, inputs] : cases) {
        const CurveFit fit = fitCurve(table(polynomial, inputs));
        EXPECT_EQ(fit.coefficients, polynomial) << fitText(fit).toStdString();
        EXPECT_EQ(fit.standardDeviation, 0);
    }
}

TEST(CurveFit, keepsItsDigitsWhereInputsLieCloseTogether)
{
    const CurveFit fit = fitCurve(table({0.25, -1, 3, 8}, {100, 101, 102, 104, 105, 107, 109, 110}));
    EXPECT_NEAR(fit.coefficients.c3, 0.25, 1e-8);
    EXPECT_NEAR(fit.coefficients.c2, -1, 1e-7);
    EXPECT_NEAR(fit.coefficients.c0, 8, 1e-4);
}

// x^4 over -2 to 2: the normal equations 5a + 10b = 34 and 10a + 34b = 130 give -72/35 and 31/7, and 288/35
// is left over for the one degree of freedom.
TEST(CurveFit, minimisesTheSquares)
{
    const CurveFit fit = fitCurve({{-2, 16}, {-1, 1}, {0, 0}, {1, 1}, {2, 16}});
    EXPECT_EQ(fit.coefficients, (Coefficients{0, 4.42857143, 0, -2.05714286}));
    EXPECT_EQ(fit.standardDeviation, 2.869);
    EXPECT_EQ(fitText(fit).toStdString(), "4.43x^2 - 2.06     std dev=2.869");
}

TEST(CurveFit, saysWhatIsWrongWithThePoints)
{
    const char *const same = "Not enough different values of Input X";
    const std::pair<QList<QPointF>, const char *> cases[] = {
        {{}, "Not enough data"},
        {{{1, 1}}, "none"},
        {table({0, 0, 2, 1}, std::vector<double>(26)), "Maxmium of 25 data points"},
        {{{1, 1}, {1, 2}}, same},
        {{{0.1, 1}, {0.1, 2}, {0.3, 5}, {0.3, 6}, {0.7, 1}, {0.7, 2}}, same}};
    for (const auto &[points, complaint] : cases)
        EXPECT_EQ(fitComplaint(points, fitDegree(points.size())).value_or("none"), complaint);
    EXPECT_EQ(fitComplaint({{1, 1}, {2, 2}, {3, 3}}, 3), "Not Enough Data");
}

TEST(FitPoints, countOnlyWhereBothCellsHoldText)
{
    const QList<QStringList> rows{{"1", "2"}, {"", "3"}, {"4", " "}, {"", ""}, {"1,5", "-2.5"}, {"x", "1e3"}};
    EXPECT_EQ(fitPoints(rows), (QList<QPointF>{{1, 2}, {1.5, -2.5}, {0, 1000}}));
    EXPECT_THROW(fitPoints({{"1", "9e999"}}), common::RunTimeError);
}

} // namespace
