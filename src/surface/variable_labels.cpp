#include "surface/variable_labels.h"

#include "common/number_text.h"

namespace surface {

using common::shortestText;
using variables::VariableGroup;
using variables::VariableRecord;

namespace {

constexpr int FirstRecord = 1;
constexpr int FirstWithoutOptions = 7000;

QString unitLine(const VariableRecord &record, const QString &unit)
{
    switch (static_cast<VariableGroup>(record.VariableType)) {
    case VariableGroup::UserDefined:
        return QStringLiteral("edit equation");
    case VariableGroup::ExternalInput:
        return QStringLiteral("sensor type/units: [%1]").arg(unit);
    default:
        return QStringLiteral("units: [%1]").arg(unit);
    }
}

QString orNoneSet(const QString &caption, bool isSet, const QString &value)
{
    return caption + (isSet ? value : QStringLiteral("None Set"));
}

const QString &unitLabel(const VariableRecord &record, const variables::UnitTable &units)
{
    return record.UseCustomTrans ? record.CustomUnits
                                 : units[findUnit(units, record.ApplyTransformation)].Uniit;
}

} // namespace

QString variableKey(const char *role, int index)
{
    return QStringLiteral("#%1#%2").arg(QLatin1String(role)).arg(index);
}

QString VariableDetail::key(int index) const
{
    const QString key = variableKey(role, index);
    return *field ? key + QLatin1Char('#') + QLatin1String(field) : key;
}

QString variableText(const VariableRecord &record)
{
    return QStringLiteral("%1  (%2)").arg(record.BaseName, record.PhysicalName);
}

std::vector<VariableDetail> variableDetails(const VariableRecord &record, int index,
                                            const variables::UnitTable &units, const QString &decimalMark)
{
    const QString roc = orNoneSet(QStringLiteral("Maximum rate of change: "), record.MaximumROC > 0,
                                  shortestText(record.MaximumROC, decimalMark));
    const QString smoothing =
        orNoneSet(QStringLiteral("Smoothed over: "), record.SmoothingTime != 0,
                  shortestText(record.SmoothingTime, decimalMark) + QStringLiteral(" seconds"));
    std::vector<VariableDetail> details;
    if (index < FirstWithoutOptions && index != FirstRecord) {
        details.push_back({"AVAILABLETYPE",
                           QStringLiteral("Advanced options"),
                           "advanced",
                           {{"MAXROC", roc, "roc"}},
                           "ADVANCED"});
    }
    details.push_back({"TRANSFORMTYPE", unitLine(record, unitLabel(record, units)), "units"});
    details.push_back({"USERNAME", QStringLiteral("Variable Name: ") + record.BaseName, "name"});
    details.push_back({"SMOOTHING", smoothing, "smooth"});
    return details;
}

} // namespace surface
