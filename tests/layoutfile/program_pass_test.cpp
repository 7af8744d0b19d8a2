#include "layoutfile/fold_variables.h"
#include "layoutfile/layout_bytes.h"
#include "layoutfile/program_pass.h"

#include <gtest/gtest.h>

namespace {

using namespace layoutfile;
using test::bytes;
using variables::VariableRecord;

const platform::NumberLocale Plain;

// 2*x for variable 2.
const QByteArray Doubled = bytes("011400000040 02120100 0108 0119");

VariableRecord &slot(variables::Catalogue &catalogue, int index)
{
    return catalogue.live[static_cast<std::size_t>(index)];
}

// Speeds in km/h with three other units, user variables from 6001 on.
variables::Catalogue someCatalogue()
{
    variables::Catalogue catalogue;
    catalogue.units = {{},
                       {"km/h", "", "value$1$0", "km/h"},
                       {"double", "", "two$2$0", "2"},
                       {"broken", "", "x+", "?"},
                       {"forbidden", "", "x/2", "half"}};
    for (const int index : {2, 3, 4, 5, 10, 6001, 6002, 6003, 6004, 6005}) {
        VariableRecord &variable = slot(catalogue, index);
        variable.IndexNumber = index;
        variable.Enabled = variable.Available = true;
        variable.VariableType = index > 6000 ? 4 : 1;
        variable.AllowTransformations = QStringList{"km/h", "broken", "double"};
        variable.ApplyTransformation = "km/h";
        variable.UseCustomTrans = index > 6000;
        variable.CustomTransformation = "0";
    }
    return catalogue;
}

TEST(UsedVariables, areThoseOfActiveConditionsAndOfUsedEquationsInOnePass)
{
    variables::Catalogue catalogue = someCatalogue();
    slot(catalogue, 6001).CustomTransformation = "var_0017"; // named by a later one only: not looked into
    slot(catalogue, 6002).CustomTransformation = "var_0015+Var_6001*VAR_6003";
    slot(catalogue, 6003).CustomTransformation = "u+VAR_0016";
    slot(catalogue, 6004).CustomTransformation = "var_0018"; // not used
    slot(catalogue, 22).CustomTransformation = "var_0031";   // no user variable
    slot(catalogue, 22).UseCustomTrans = true;
    recorder::RecorderSettings settings;
    settings.ChapterList = {{0, 0, 0, 6002, 0, 1}, {0, 0, 0, -5, 0, 1}, {0, 0, 0, 8001, 0, 1}};
    settings.autoStart = {41, 0, 0, 0}; // not active
    settings.autoStop = {22, 1, 0, 0};
    UsedVariables used;
    markSettings(used, settings);
    markReferences(used, catalogue.live);
    std::vector<int> found;
    for (int index = 0; index <= variables::LastIndex; ++index) {
        if (used.isUsed(index))
            found.push_back(index);
    }
    EXPECT_EQ(found, (std::vector<int>{10, 15, 16, 22, 6001, 6002, 6003}));
}

TEST(ProgramPass, everyUsedVariableGetsItsProgramOrNone)
{
    variables::Catalogue catalogue = someCatalogue();
    slot(catalogue, 2).ApplyTransformation = "double";
    slot(catalogue, 2).SmoothingTime = 0.5F;
    slot(catalogue, 2).MaximumROC = 20;
    slot(catalogue, 4).ApplyTransformation = "broken";
    slot(catalogue, 5).ApplyTransformation = "forbidden";
    slot(catalogue, 10).ApplyTransformation = "double";
    slot(catalogue, 6001).CustomTransformation = "x" + QString("+x").repeated(41); // 252 bytes
    slot(catalogue, 6002).CustomTransformation = "temp";
    slot(catalogue, 6003).CustomTransformation = "1" + QString("+1").repeated(31); // 256 bytes
    slot(catalogue, 6004).CustomTransformation = "var_0002";
    slot(catalogue, 6005).CustomTransformation = "x";
    const struct
    {
        int variable;
        qint32 offset;
        quint8 length; // 0 where the variable is not used
    } expected[] = {{2, 0, 14},      {3, -1, 1},    {4, -1, 1},    {5, -1, 1},     {10, -1, 0},
                    {6001, 14, 252}, {6002, -1, 1}, {6003, -1, 1}, {6004, 266, 6}, {6005, -1, 0}};
    UsedVariables used;
    for (const auto &[variable, offset, length] : expected) {
        if (length > 0)
            used.mark(variable);
    }
    ProgramPass pass(catalogue, used, Plain);
    for (const auto &[variable, offset, length] : expected) {
        const VariableEntry entry = pass.entry(variable);
        EXPECT_EQ(entry.variable, variable);
        EXPECT_EQ(entry.used, length > 0 ? 1 : 0) << variable;
        EXPECT_EQ(entry.programOffset, offset) << variable;
        EXPECT_EQ(entry.programLength, length) << variable;
        EXPECT_EQ(entry.smoothingTime, variable == 2 ? 0.5F : 0.0F);
        EXPECT_EQ(entry.maximumRoc, variable == 2 ? 20.0F : 0.0F);
    }
    EXPECT_EQ(pass.programs().size(), 272);
    EXPECT_EQ(pass.programs().first(14), Doubled);
    EXPECT_EQ(pass.programs().last(6), bytes("01120100 0119"));
}

TEST(Folding, programsBecomeUnitsOrEquations)
{
    const QByteArray plusOne = bytes("01120100 02140000C03F 0106 0119"); // var_0002 + 1.5
    const QByteArray ofUser = bytes("011400000040 02127017 0108 0119");  // 2*var_6001
    variables::Catalogue catalogue = someCatalogue();
    slot(catalogue, 2).UseCustomTrans = true;
    foldVariables({{1, VariableEntry{2, 1, 0.25F, 7, 0, 14}},
                   {2, VariableEntry{3, 1, 0, 0, 14, 14}},
                   {3, VariableEntry{6001, 1, 0, 0, 28, 14}},
                   {1, ProgramsRecord{Bulk{Doubled + plusOne + ofUser}}}},
                  catalogue, {",", ";"});
    EXPECT_EQ(slot(catalogue, 2).ApplyTransformation, "double");
    EXPECT_FALSE(slot(catalogue, 2).UseCustomTrans);
    EXPECT_EQ(slot(catalogue, 2).SmoothingTime, 0.25F);
    EXPECT_EQ(slot(catalogue, 2).MaximumROC, 7);
    EXPECT_TRUE(slot(catalogue, 3).UseCustomTrans);
    EXPECT_EQ(slot(catalogue, 3).CustomTransformation, "VAR_0002 + 1,5");
    // A user variable keeps to equations though the unit would do.
    EXPECT_TRUE(slot(catalogue, 6001).UseCustomTrans);
    EXPECT_EQ(slot(catalogue, 6001).CustomTransformation, "2 * u");
    EXPECT_EQ(slot(catalogue, 6001).ApplyTransformation, "km/h");
    EXPECT_TRUE(catalogue.staging == catalogue.live);
}

TEST(Folding, whatPointsNowhereChangesNoDefinition)
{
    constexpr qint32 Largest = 0x7FFFFFFF;
    const QByteArray programs = Doubled + bytes("010F 0119"); // the second with an unknown code
    const std::pair<const char *, VariableEntry> cases[] = {
        {"no program", {2, 1, 1, 1, -1, 1}},
        {"least offset", {2, 1, 1, 1, -Largest - 1, 14}},
        {"an unused variable", {2, 0, 1, 1, 0, 14}},
        {"at the end", {2, 1, 1, 1, 18, 1}},
        {"largest offset", {2, 1, 1, 1, Largest, 255}},
        {"past the end", {2, 1, 1, 1, 14, 5}},
        {"cut off", {2, 1, 1, 1, 0, 13}},
        {"no length", {2, 1, 1, 1, 0, 0}},
        {"an unknown code", {2, 1, 1, 1, 14, 4}},
        {"slot 0", {0, 1, 1, 1, 0, 14}},
        {"a negative slot", {-2, 1, 1, 1, 0, 14}},
        {"a slot too many", {8001, 1, 1, 1, 0, 14}},
    };
    variables::Catalogue start = someCatalogue();
    variables::SetupVariables(start);
    for (const auto &[name, entry] : cases) {
        variables::Catalogue catalogue = start, expected = start;
        if (entry.variable == 2)
            slot(expected, 2).SmoothingTime = slot(expected, 2).MaximumROC = 1;
        foldVariables({{1, entry}, {1, ProgramsRecord{Bulk{programs}}}}, catalogue, Plain);
        EXPECT_TRUE(catalogue.live == expected.live) << name;
    }
}

} // namespace
