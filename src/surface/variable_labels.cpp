#include "surface/variable_labels.h"

#include "common/number_text.h"

namespace surface {

using namespace Qt::StringLiterals;
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
        return u"edit equation"_s;
    case VariableGroup::ExternalInput:
        return u"sensor type/units: [%1]"_s.arg(unit);
    default:
        return u"units: [%1]"_s.arg(unit);
    }
}

QString orNoneSet(const QString &caption, bool isSet, const QString &value)
{
    return caption + (isSet ? value : u"None Set"_s);
}

} // namespace

QString variableKey(QLatin1String role, int index) { return u"#%1#%2"_s.arg(role).arg(index); }

QString VariableDetail::key(int index) const
{
    const QString key = variableKey(role, index);
    return *field ? key + '#'_L1 + QLatin1String(field) : key;
}

QString variableText(const VariableRecord &record)
{
    return u"%1  (%2)"_s.arg(record.BaseName, record.PhysicalName);
}

std::vector<VariableDetail> variableDetails(const VariableRecord &record, int index,
                                            const variables::UnitTable &units, const QString &decimalMark)
{
    const QString roc = orNoneSet(u"Maximum rate of change: "_s, record.MaximumROC > 0,
                                  shortestText(record.MaximumROC, decimalMark));
    const QString smoothing = orNoneSet(u"Smoothed over: "_s, record.SmoothingTime != 0,
                                        shortestText(record.SmoothingTime, decimalMark) + u" seconds"_s);
    std::vector<VariableDetail> details;
    if (index < FirstWithoutOptions && index != FirstRecord) {
        details.push_back({role::Variable,
                           u"Advanced options"_s,
                           "advanced",
                           {{role::MaximumRoc, roc, "roc"}},
                           "ADVANCED"});
    }
    details.push_back({role::Unit, unitLine(record, shownUnit(record, units)), "units"});
    details.push_back({role::Name, u"Variable Name: "_s + record.BaseName, "name"});
    details.push_back({role::Smoothing, smoothing, "smooth"});
    return details;
}

} // namespace surface
