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
        EXPECT_EQ(unitLabel(speed(), row, Units), QStringLiteral("[]"));
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
        EXPECT_EQ(record.ApplyTransformation, QLatin1String(expected.unit));
        EXPECT_EQ(record.CustomTransformation, QLatin1String(expected.equation));
        EXPECT_EQ(record.CustomUnits, QLatin1String(expected.units));
        EXPECT_EQ(record.DisplayName, QLatin1String(expected.displayName));
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
    EXPECT_EQ(entries[0].text + entries[1].text, QStringLiteral("VAR_0002VAR_6001"));
}

} // namespace
