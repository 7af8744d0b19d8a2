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
        quint8 length;
    } expected[] = {{2, 0, 14},      {3, -1, 1},    {4, -1, 1},    {5, -1, 1},     {10, -1, 0},
                    {6001, 14, 252}, {6002, -1, 1}, {6003, -1, 1}, {6004, 266, 6}, {6005, -1, 0}};
    UsedVariables used;
    for (const int index : {2, 3, 4, 5, 6001, 6002, 6003, 6004})
        used.mark(index);
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
    EXPECT_EQ(pass.programs().first(14).toHex(), Doubled.toHex());
    EXPECT_EQ(pass.programs().last(6).toHex(), bytes("01120100 0119").toHex());
}

TEST(Folding, programsBecomeUnitsOrEquations)
{
    const QByteArray ofSecond = Doubled;                                 // 2*var_0002
    const QByteArray plusOne = bytes("01120100 02140000C03F 0106 0119"); // var_0002 + 1.5
    const QByteArray ofUser = bytes("011400000040 02127017 0108 0119");  // 2*var_6001
    variables::Catalogue catalogue = someCatalogue();
    slot(catalogue, 2).UseCustomTrans = true;
    const QByteArray programs = ofSecond + plusOne + ofUser;
    foldVariables({{1, VariableEntry{2, 1, 0.25F, 7, 0, 14}},
                   {2, VariableEntry{3, 1, 0, 0, 14, 14}},
                   {3, VariableEntry{6001, 1, 0, 0, 28, 14}},
                   {1, ProgramsRecord{Bulk{programs}}}},
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
    const QByteArray unknownCode = bytes("010F 0119");
    const QByteArray programs = Doubled + unknownCode;
    const struct
    {
        const char *name;
        VariableEntry entry;
    } cases[] = {
        {"no program", {2, 1, 1, 1, -1, 1}},
        {"least offset", {2, 1, 1, 1, -Largest - 1, 14}},
        {"an unused variable", {2, 0, 1, 1, 0, 14}},
        {"behind the end", {2, 1, 1, 1, 19, 14}},
        {"at the end", {2, 1, 1, 1, 18, 1}},
        {"largest offset", {2, 1, 1, 1, Largest, 255}},
        {"past the end", {2, 1, 1, 1, 14, 5}},
        {"cut off", {2, 1, 1, 1, 0, 13}},
        {"no length", {2, 1, 1, 1, 0, 0}},
        {"an unknown code", {2, 1, 1, 1, 14, 4}},
        {"slot 0", {0, 1, 1, 1, 0, 14}},
        {"a negative slot", {-2, 1, 1, 1, 0, 14}},
        {"a slot too many", {8001, 1, 1, 1, 0, 14}},
        {"the largest slot", {Largest, 1, 1, 1, 0, 14}},
    };
    for (const auto &test : cases) {
        variables::Catalogue catalogue = someCatalogue();
        variables::SetupVariables(catalogue);
        variables::Catalogue expected = catalogue;
        if (test.entry.variable == 2)
            slot(expected, 2).SmoothingTime = slot(expected, 2).MaximumROC = 1;
        foldVariables({{1, test.entry}, {1, ProgramsRecord{Bulk{programs}}}}, catalogue, Plain);
        EXPECT_TRUE(catalogue.live == expected.live) << test.name;
    }
}

} // namespace
