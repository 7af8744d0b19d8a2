#include "layoutfile/fold_variables.h"
#include "layoutfile/layout_bytes.h"
#include "layoutfile/program_pass.h"
#include "layoutfile/save_checks.h"

#include <gtest/gtest.h>
#include <set>

namespace {

using namespace layoutfile;
using test::bytes;
using variables::VariableRecord;

// 2*x for variable 2.
const QByteArray Doubled = bytes("011400000040 02120100 0108 0119");

VariableRecord &slot(variables::Catalogue &catalogue, int index) { return catalogue.live[index]; }

// Variables with three allowed units, and equations from 6001 on.
variables::Catalogue someCatalogue()
{
    variables::Catalogue catalogue;
    catalogue.units = {{},
                       {"km/h", "", "a$1$0", "km/h"},
                       {"double", "", "a$2$0", "twice"},
                       {"broken", "", "x+", ""},
                       {"forbidden", "", "x/2", ""}};
    for (const int index : {2, 3, 4, 5, 10, 22, 6001, 6002, 6003, 6004, 6005}) {
        VariableRecord &variable = slot(catalogue, index);
        variable.VariableType = index > 6000 ? 4 : 1;
        variable.AllowTransformations = QStringList{"km/h", "broken", "double"};
        variable.ApplyTransformation = "km/h";
        variable.UseCustomTrans = index > 6000;
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
    const std::set<int> expected{10, 15, 16, 22, 6001, 6002, 6003};
    for (int index = 0; index <= variables::LastIndex; ++index)
        EXPECT_EQ(used.isUsed(index), expected.contains(index)) << index;
}

TEST(ProgramPass, everyUsedVariableGetsItsProgramOrNone)
{
    variables::Catalogue catalogue = someCatalogue();
    slot(catalogue, 2).ApplyTransformation = slot(catalogue, 10).ApplyTransformation = "double";
    slot(catalogue, 2).SmoothingTime = 0.5F;
    slot(catalogue, 2).MaximumROC = 20;
    slot(catalogue, 4).ApplyTransformation = "broken";
    slot(catalogue, 5).ApplyTransformation = "forbidden";
    slot(catalogue, 6001).CustomTransformation = "x" + QString("+x").repeated(41); // 252 bytes
    slot(catalogue, 6002).CustomTransformation = "temp";
    slot(catalogue, 6003).CustomTransformation = "1" + QString("+1").repeated(31); // 256 bytes
    slot(catalogue, 6004).CustomTransformation = "var_0002";
    const std::vector<VariableEntry> expected{
        {2, 1, 0.5F, 20, 0, 14}, {3, 1, 0, 0, -1, 1},      {4, 1, 0, 0, -1, 1},    {5, 1, 0, 0, -1, 1},
        {10, 0, 0, 0, -1, 0},    {6001, 1, 0, 0, 14, 252}, {6002, 1, 0, 0, -1, 1}, {6003, 1, 0, 0, -1, 1},
        {6004, 1, 0, 0, 266, 6}, {6005, 0, 0, 0, -1, 0}};
    UsedVariables used;
    for (const VariableEntry &entry : expected) {
        if (entry.used == 1)
            used.mark(entry.variable);
    }
    const platform::NumberLocale locale;
    ProgramPass pass(catalogue, used, locale);
    for (const VariableEntry &entry : expected)
        EXPECT_EQ(test::payloadOf(pass.entry(entry.variable)).toHex(), test::payloadOf(entry).toHex());
    EXPECT_EQ(pass.programs().size(), 272);
    EXPECT_TRUE(pass.programs().startsWith(Doubled));
    EXPECT_TRUE(pass.programs().endsWith(bytes("01120100 0119")));
}

TEST(Folding, programsBecomeUnitsOrEquations)
{
    const QByteArray plusOne = bytes("01120100 02140000C03F 0106 0119"); // var_0002 + 1.5
    const QByteArray ofUser = bytes("011400000040 02127017 0108 0119");  // 2*var_6001
    variables::Catalogue catalogue = someCatalogue(), expected = catalogue;
    variables::SetupVariables(catalogue);
    slot(catalogue, 2).UseCustomTrans = true;
    foldVariables({{1, VariableEntry{2, 1, 0.25F, 7, 0, 14}},
                   {2, VariableEntry{3, 1, 0, 0, 14, 14}},
                   {3, VariableEntry{6001, 1, 0, 0, 28, 14}},
                   {1, ProgramsRecord{Bulk{Doubled + plusOne + ofUser}}}},
                  catalogue, {",", ";"});
    slot(expected, 2).ApplyTransformation = "double";
    slot(expected, 2).SmoothingTime = 0.25F;
    slot(expected, 2).MaximumROC = 7;
    slot(expected, 3).UseCustomTrans = true;
    slot(expected, 3).CustomTransformation = "VAR_0002 + 1,5";
    slot(expected, 6001).CustomTransformation = "2 * u"; // no unit, though one would do
    variables::SetupVariables(expected);
    EXPECT_TRUE(catalogue.live == expected.live);
    EXPECT_TRUE(catalogue.staging == catalogue.live);
}

TEST(Folding, aUsedVariableWithoutAProgramShowsItsRawValueAgain)
{
    const std::tuple<const char *, const char *, bool, bool, int, const char *> cases[] = {
        {"double", "double broken km/h raw", true, false, 2, "km/h"},
        {"raw", "double broken km/h raw", true, false, 2, "raw"}, // one raw unit is as good as the other
        {"gone", "km/h", true, false, 2, "km/h"},
        {"double", "double broken", true, false, 2, "double"}, // has no raw unit
        {"double", "double km/h", false, false, 2, "double"},
        {"double", "double km/h", true, true, 2, "double"},
        {"double", "double km/h", true, true, 6001, "double"},
        {"double", "double km/h", true, false, 6001, "double"},
    };
    for (const auto &[before, allowed, used, own, index, after] : cases) {
        variables::Catalogue catalogue = someCatalogue();
        catalogue.units.push_back({"raw", "", "a$1$0", ""});
        VariableRecord &variable = slot(catalogue, index);
        variable.ApplyTransformation = before;
        variable.AllowTransformations = QString(allowed).split(' ');
        variable.UseCustomTrans = own;
        const quint8 flag = used ? 1 : 0;
        foldVariables({{1, VariableEntry{index, flag, 0, 0, -1, flag}}, {1, ProgramsRecord{}}}, catalogue,
                      {});
        EXPECT_EQ(variable.ApplyTransformation, after) << allowed << index;
        EXPECT_EQ(variable.UseCustomTrans, own || index > 6000);
    }
}

TEST(Folding, whatPointsNowhereChangesNoDefinition)
{
    constexpr qint32 Largest = 0x7FFFFFFF;
    // 2*x, an unknown code, no result, NaN + x, the negative infinity.
    const QByteArray programs =
        Doubled + bytes("010F 0119 0119 01140000C07F 02120100 0106 0119") + bytes("0114000080FF 0119");
    // The largest offset, at the end, past it, cut off, without a length, what makes no equation, a variable
    // that is not used, slots that are none.
    const std::vector<VariableEntry> cases{
        {2, 1, 1, 1, Largest, 255}, {2, 1, 1, 1, 42, 1}, {2, 1, 1, 1, 34, 9}, {2, 1, 1, 1, 0, 13},
        {2, 1, 1, 1, 0, 0},         {2, 1, 1, 1, 14, 4}, {2, 1, 1, 1, 18, 2}, {2, 1, 1, 1, 20, 14},
        {2, 1, 1, 1, 34, 8},        {2, 0, 1, 1, 0, 14}, {0, 1, 1, 1, 0, 14}, {-2, 1, 1, 1, 0, 14},
        {8001, 1, 1, 1, 0, 14}};
    variables::Catalogue start = someCatalogue();
    slot(start, 2).ApplyTransformation = "broken";
    variables::SetupVariables(start);
    for (const VariableEntry &entry : cases) {
        variables::Catalogue catalogue = start, expected = start;
        if (entry.variable == 2)
            slot(expected, 2).SmoothingTime = slot(expected, 2).MaximumROC = 1;
        foldVariables({{1, entry}, {1, ProgramsRecord{Bulk{programs}}}}, catalogue, {});
        EXPECT_TRUE(catalogue.live == expected.live)
            << entry.variable << ": " << entry.programLength << " bytes at " << entry.programOffset;
    }
}

TEST(SaveChecks, complainOfOneThingAtATimeAndFindASharedCamera)
{
    constexpr ControlKind Map{controls::ControlType::TrackMap}, Bar{controls::ControlType::BarGraph};
    constexpr ControlKind Source{controls::ControlType::VideoSource};
    constexpr ControlKind Background{controls::ControlType::VideoSource, true};
    EXPECT_EQ(saveComplaint({Background, Map, Background, Map}),
              "System does not support more than one Track Map");
    EXPECT_EQ(saveComplaint({Background, Map, Background}),
              "You can't use multiple Video Sources as background video\n"
              "Please select one Video Source as a background video");
    EXPECT_EQ(saveComplaint({}), "System can't detect any object(s) to save");
    EXPECT_EQ(saveComplaint({Background, Source, Source, Map, Bar, Bar}), "");

    RecordGroups groups;
    for (const quint8 camera : std::array<quint8, 4>{1, 3, 2, 3}) {
        EXPECT_FALSE(sharesCamera(groups.of(RecordType::VideoSource)));
        groups.add(VideoSourceRecord{.borderColour = {}, .cameraNo = camera});
    }
    EXPECT_TRUE(sharesCamera(groups.of(RecordType::VideoSource)));
}

} // namespace
