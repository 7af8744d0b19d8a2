#include "variables/catalogue.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>

namespace {

using namespace variables;

TEST(SetupVariables, flagsFollowTheHardware)
{
    // AlwaysOn, Enabled and Available before, Enabled and Available after, "-" for off.
    const std::tuple<std::size_t, std::string, std::string> cases[] = {
        {2, "A--", "EV"}, {2, "-EV", "EV"}, {2, "-E-", "E-"}, {2, "--V", "--"},
        {6, "A--", "-V"}, {6, "-EV", "-V"}, {6, "--V", "--"}, {8000, "AEV", "--"}};
    for (const auto &[index, before, after] : cases) {
        Catalogue catalogue;
        VariableRecord &record = catalogue.live[index];
        record.AlwaysOn = before[0] == 'A';
        record.Enabled = before[1] == 'E';
        record.Available = before[2] == 'V';
        SetupVariables(catalogue);
        EXPECT_EQ(record.Enabled, after[0] == 'E') << index << before;
        EXPECT_EQ(record.Available, after[1] == 'V') << index << before;
    }
    std::vector<int> indexes(LastIndex + 3);
    std::iota(indexes.begin(), indexes.end(), -1);
    EXPECT_EQ(std::count_if(indexes.begin(), indexes.end(), &isPermitted), 251);
}

TEST(SetupVariables, someVariablesAreNeverSmoothed)
{
    Catalogue catalogue;
    for (VariableRecord &record : catalogue.live)
        record.SmoothingTime = record.MaximumROC = 2.5F;
    SetupVariables(catalogue);
    for (const auto &[index, sum] : {std::pair(1, 0), {2, 5}, {6999, 5}, {7000, 0}, {7011, 0}, {7012, 5}})
        EXPECT_EQ(catalogue.live[index].SmoothingTime + catalogue.live[index].MaximumROC, sum) << index;
}

TEST(SetupVariables, displayNamesCarryTheUnitInForce)
{
    Catalogue catalogue;
    catalogue.units = {{}, {"kmh", "", "", "km/h"}, {"KMH", "", "", "KM/H"}, {"kmh", "", "", "second"}};
    VariableRecord &record = catalogue.live[6]; // off, and named all the same
    record.BaseName = "Speed";
    const std::pair<const char *, const char *> cases[] = {
        {"kmh", "Speed [km/h]"}, {"KMH", "Speed [KM/H]"}, {"Kmh", "Speed []"}, {"", "Speed []"}};
    for (const auto &[unit, expected] : cases) {
        record.ApplyTransformation = unit;
        SetupVariables(catalogue);
        EXPECT_EQ(record.DisplayName.toStdString(), expected);
    }
}

TEST(LookUps, wholeNamesComeBeforeThoseWithoutTheirUnit)
{
    const char *const names[] = {
        "", "", " Speed ", "Lap [best]", "Speed [GPS]", "Accel [lat]", "Accel [long]", "Accel"};
    VariableTable table(LastIndex + 1);
    for (int i = 2; i < 8; ++i)
        table[i].BaseName = names[i];
    table[2].PhysicalName = "GPS";
    table[9].BaseName = table[9].PhysicalName = "SPEED";
    using enum NameField;
    const std::tuple<const char *, NameField, int> cases[] = {
        {"speed [km/h]", BaseName, 2}, {"  sPeEd", BaseName, 2},        {"speed", PhysicalName, 9},
        {"gps[", PhysicalName, 2},     {"lap [best] [s]", BaseName, 3}, {"gps", BaseName, 8000},
        {"speed2", BaseName, 8000},    {" speed [gps]", BaseName, 4},   {"accel [long]", BaseName, 6},
        {"accel [g]", BaseName, 7}};
    for (const auto &[name, field, expected] : cases)
        EXPECT_EQ(findByName(table, name, field), expected) << name;
}

} // namespace
