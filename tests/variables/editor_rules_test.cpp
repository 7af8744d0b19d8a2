#include "common/run_time_error.h"
#include "variables/curve_fit.h"
#include "variables/table_text.h"
#include "variables/transformation.h"
#include "variables/transformation_entries.h"

#include <gtest/gtest.h>

namespace {

using namespace variables;

const UnitTable Units{
    {"", "", "", ""}, {"kph", "Kilometres per hour", "-$1$0", "km/h"}, {"mph", "Miles", "x*0.62", "mi"}};

VariableRecord speed()
{
    VariableRecord record;
    record.BaseName = "Speed";
    record.VariableType = 1;
    record.ApplyTransformation = "mph";
    record.AllowTransformations = {"kph", "mph", "lost"};
    record.CustomTransformation = "x\r\n+1";
    record.CustomUnits = "abc";
    return record;
}

TEST(Transformation, namesUnitsThatTheTableLacks)
{
    EXPECT_EQ(unitChoices(speed(), Units), (QStringList{"Kilometres per hour", "Miles", "lost"}));
    for (const int row : {-1, 2, 3})
        EXPECT_EQ(unitLabel(speed(), row, Units), "[]");
}

TEST(Transformation, storesByTheChosenOption)
{
    struct Case
    {
        TransformationForm form;
        bool custom;
        const char *unit, *equation, *units, *displayName;
    };
    const Case cases[] = {
        {{true, 0, "x*2", "abcd"}, true, "mph", "x*2", "abc", "Speed [abc]"},
        {{false, 0, "not (looked at", "abcd"}, false, "kph", "not (looked at", "abc", "Speed [km/h]"},
        {{false, -1, "", ""}, false, "mph", "0", "abc", "Speed [mi]"},
    };
    for (const Case &expected : cases) {
        VariableRecord record = speed();
        EXPECT_EQ(validate(expected.form, 2, {}), std::nullopt);
        storeTransformation(expected.form, record, Units);
        EXPECT_EQ(record.UseCustomTrans, expected.custom);
        EXPECT_EQ(record.ApplyTransformation, expected.unit);
        EXPECT_EQ(record.CustomTransformation, expected.equation);
        EXPECT_EQ(record.CustomUnits, expected.units);
        EXPECT_EQ(record.DisplayName, expected.displayName);
    }
}

TEST(Transformation, compilesACustomEquation)
{
    EXPECT_EQ(validate({true, 0, "2*x\r\n+var_0003", ""}, 2, {}), std::nullopt);
    EXPECT_EQ(validate({true, 0, "2,5*x", ""}, 2, {",", ";"}), std::nullopt);
    for (const char *wrong : {"2*(x", "Temp", " ", "sqrt(0-1)", "RND()"})
        EXPECT_EQ(validate({true, 0, wrong, ""}, 2, {}), EquationError) << wrong;
}

TEST(VariableEntries, areTheEnabledVariablesInIndexOrder)
{
    VariableTable table(LastIndex + 1);
    table[6001].Enabled = table[2].Enabled = table[3].Available = true;
    const std::vector<VariableEntry> entries = variableEntries(table);
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].text + entries[1].text, "VAR_0002VAR_6001");
}

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
    EXPECT_NEAR(fit.coefficients.c1, 3, 1e-6);
    EXPECT_NEAR(fit.coefficients.c0, 8, 1e-4);
    EXPECT_EQ(fit.standardDeviation, 0);
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

TEST(CurveFit, isARunTimeErrorWhereNumbersOverflow)
{
    EXPECT_THROW(fitCurve({{1e200, 1}, {2, 2}, {3, 3}}), common::RunTimeError);
}

TEST(CurveFit, saysWhatIsWrongWithThePoints)
{
    const auto complaint = [](const QList<QPointF> &points) {
        return fitComplaint(points, fitDegree(points.size())).value_or("none").toStdString();
    };
    const auto points = [](int count) {
        QList<QPointF> line;
        for (int i = 0; i < count; ++i)
            line.append({0.5 * i, 1});
        return line;
    };
    EXPECT_EQ(complaint({}), "Not enough data");
    EXPECT_EQ(fitComplaint(points(3), 3), "Not Enough Data");
    EXPECT_EQ(complaint(points(26)), "Maxmium of 25 data points");
    for (const int count : {1, 4, 5, 25})
        EXPECT_EQ(complaint(points(count)), "none") << count;
    for (const QList<QPointF> &repeated :
         {QList<QPointF>{{1, 1}, {1, 2}}, {{0.1, 1}, {0.1, 2}, {0.3, 5}, {0.3, 6}, {0.7, 1}, {0.7, 2}}})
        EXPECT_EQ(complaint(repeated), "Not enough different values of Input X") << repeated.size();
}

TEST(FitPoints, countOnlyWhereBothCellsHoldText)
{
    const QList<QStringList> rows{{"1", "2"}, {"", "3"}, {"4", " "}, {"", ""}, {"1,5", "-2.5"}, {"x", "1e3"}};
    EXPECT_EQ(fitPoints(rows), (QList<QPointF>{{1, 2}, {1.5, -2.5}, {0, 1000}}));
    EXPECT_THROW(fitPoints({{"1", "9e999"}}), common::RunTimeError);
}

TEST(TableText, isRowsAndTabs)
{
    const QList<QStringList> block{{"1", "2"}, {"", "4"}};
    EXPECT_EQ(tableText(block), "1\t2\r\n\t4");
    for (const char *text : {"1\t2\r\n\t4", "1\t2\r\n\t4\r\n", "1\t2\r\t4", "1\t2\n\t4\n"})
        EXPECT_EQ(tableRows(text), block) << text;
}

} // namespace
