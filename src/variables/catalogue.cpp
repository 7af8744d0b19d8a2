#include "variables/catalogue.h"

#include <algorithm>
#include <array>

namespace variables {

using namespace Qt::StringLiterals;

namespace {

struct Range
{
    int first;
    int last;
    bool holds(int index) const { return index >= first && index <= last; }
};

// The variables that the recorder's hardware offers.
constexpr std::array<Range, 25> Permitted{
    {{1, 5},       {10, 10},     {15, 17},     {22, 22},     {30, 31},     {40, 41},     {70, 75},
     {90, 91},     {100, 100},   {200, 231},   {300, 319},   {400, 416},   {430, 431},   {450, 451},
     {500, 500},   {1000, 1024}, {1500, 1503}, {2000, 2030}, {2500, 2511}, {3000, 3002}, {3500, 3504},
     {4000, 4004}, {5050, 5081}, {6001, 6025}, {7000, 7011}}};

constexpr Range NeverSmoothed{7000, 7011};

void normaliseFlags(VariableRecord &record, int index)
{
    if (record.AlwaysOn)
        record.Enabled = record.Available = true;
    if (!record.Enabled)
        record.Available = false;
    // Available deliberately stays when the hardware lacks the variable.
    record.Enabled = record.Enabled && isPermitted(index);
    if (index == LastIndex)
        record.Enabled = record.Available = false;
    if (index == 1 || NeverSmoothed.holds(index))
        record.SmoothingTime = record.MaximumROC = 0;
}

// The two forms in which names are compared: as they stand, and without what may be a unit.
QString whole(const QString &name) { return name.trimmed().toUpper(); }
QString cut(const QString &name) { return whole(name.section('['_L1, 0, 0)); }

} // namespace

bool isPermitted(int index)
{
    return std::any_of(Permitted.begin(), Permitted.end(),
                       [index](const Range &range) { return range.holds(index); });
}

void normalise(VariableRecord &record, int index, const UnitTable &units)
{
    normaliseFlags(record, index);
    record.DisplayName = displayName(record, units);
}

void SetupVariables(Catalogue &catalogue)
{
    catalogue.staging = {}; // so that the slots are changed where they are
    const QString emptySlotName = displayName({}, catalogue.units);
    for (qsizetype i = 1; i < catalogue.live.size(); ++i) {
        VariableRecord &record = catalogue.live[i];
        const bool isEmpty =
            record.BaseName.isEmpty() && !record.UseCustomTrans && record.ApplyTransformation.isEmpty();
        if (!isEmpty) {
            normalise(record, static_cast<int>(i), catalogue.units);
            continue;
        }
        normaliseFlags(record, static_cast<int>(i));
        record.DisplayName = emptySlotName; // one text is shared by the thousands of empty slots
    }
    catalogue.staging = catalogue.live;
}

const QString &shownUnit(const VariableRecord &record, const UnitTable &units)
{
    return record.UseCustomTrans ? record.CustomUnits
                                 : units[findUnit(units, record.ApplyTransformation)].Uniit;
}

QString displayName(const VariableRecord &record, const UnitTable &units)
{
    return record.BaseName + " ["_L1 + shownUnit(record, units) + ']'_L1;
}

int findByName(const VariableTable &table, const QString &name, NameField field)
{
    struct Comparison
    {
        QString (*ofName)(const QString &);
        QString (*ofRecord)(const QString &);
    };
    for (const Comparison &by : {Comparison{whole, whole}, {cut, whole}, {cut, cut}}) {
        const QString wanted = by.ofName(name);
        const auto found = std::find_if(table.begin(), table.end(), [&](const VariableRecord &record) {
            return by.ofRecord(field == NameField::PhysicalName ? record.PhysicalName : record.BaseName) ==
                   wanted;
        });
        if (found != table.end())
            return static_cast<int>(found - table.begin());
    }
    return NotFound;
}

std::size_t findUnit(const UnitTable &units, const QString &unitName)
{
    const auto found = std::find_if(units.begin(), units.end(),
                                    [&](const UnitRecord &unit) { return unit.UnitName == unitName; });
    return found == units.end() ? 0 : static_cast<std::size_t>(found - units.begin());
}

} // namespace variables
