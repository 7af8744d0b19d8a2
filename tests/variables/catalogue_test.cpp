#include "variables/catalogue.h"

#include <gtest/gtest.h>

namespace {

using namespace variables;

const UnitTable Units{{}, {"kmh", "", "", "km/h"}, {"KMH", "", "", "KM/H"}, {"kmh", "", "", "second"}};

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
}

TEST(SetupVariables, theHardwareHas251Variables)
{
    int permitted = 0;
    for (int i = -1; i <= LastIndex + 1; ++i)
        permitted += isPermitted(i) ? 1 : 0;
    EXPECT_EQ(permitted, 251);
    for (const int index : {0, 6, 232, 417, 5049, 5082, 6000, 6026, 6999, 7012, 8000})
        EXPECT_FALSE(isPermitted(index)) << index;
}

TEST(SetupVariables, someVariablesAreNeverSmoothed)
{
    Catalogue catalogue;
    for (VariableRecord &record : catalogue.live)
        record.SmoothingTime = record.MaximumROC = 2.5F;
    SetupVariables(catalogue);
    for (const std::size_t index : {1U, 7000U, 7011U})
        EXPECT_EQ(catalogue.live[index].SmoothingTime + catalogue.live[index].MaximumROC, 0) << index;
    for (const std::size_t index : {2U, 6999U, 7012U})
        EXPECT_EQ(catalogue.live[index].SmoothingTime + catalogue.live[index].MaximumROC, 5) << index;
}

TEST(SetupVariables, displayNamesCarryTheUnitInForce)
{
    Catalogue catalogue;
    catalogue.units = Units;
    VariableRecord &record = catalogue.live[6]; // off, and named all the same
    record.BaseName = "Speed";
    record.CustomUnits = "own";
    const std::pair<const char *, const char *> cases[] = {
        {"kmh", "Speed [km/h]"}, {"KMH", "Speed [KM/H]"}, {"Kmh", "Speed []"}, {"", "Speed []"}};
    for (const auto &[unit, expected] : cases) {
        record.ApplyTransformation = unit;
        SetupVariables(catalogue);
        EXPECT_EQ(record.DisplayName.toStdString(), expected);
    }
    record.UseCustomTrans = true;
    SetupVariables(catalogue);
    EXPECT_EQ(record.DisplayName, "Speed [own]");
    EXPECT_EQ(catalogue.live[0].DisplayName, "");
    EXPECT_EQ(catalogue.live[7].DisplayName, " []");
}

TEST(LookUps, wholeNamesComeBeforeThoseWithoutTheirUnit)
{
    VariableTable table(LastIndex + 1);
    table[2].BaseName = " Speed ";
    table[2].PhysicalName = "GPS";
    table[3].BaseName = "Lap [best]";
    table[4].BaseName = "Speed [GPS]";
    table[5].BaseName = "Accel [lat]";
    table[6].BaseName = "Accel [long]";
    table[7].BaseName = "Accel";
    table[9].BaseName = table[9].PhysicalName = "SPEED";
    const std::tuple<const char *, NameField, int> cases[] = {
        {"speed [km/h]", NameField::BaseName, 2},   {"  sPeEd", NameField::BaseName, 2},
        {"speed", NameField::PhysicalName, 9},      {"gps[", NameField::PhysicalName, 2},
        {"lap [best] [s]", NameField::BaseName, 3}, {"gps", NameField::BaseName, 8000},
        {"speed2", NameField::BaseName, 8000},      {" speed [gps]", NameField::BaseName, 4},
        {"accel [long]", NameField::BaseName, 6},   {"accel [g]", NameField::BaseName, 7}};
    for (const auto &[name, field, expected] : cases)
        EXPECT_EQ(findByName(table, name, field), expected) << name;
}

} // namespace
