#pragma once

#include "variables/catalogue.h"

#include <QString>

#include <array>
#include <vector>

namespace surface {

// The texts of the variable tree, made from the catalogue.

struct VariableGroupNode
{
    variables::VariableGroup group;
    const char *text;
    const char *art; // icon in the resources
    QString key() const { return QStringLiteral("VT_%1").arg(static_cast<int>(group)); }
};

inline constexpr std::array<VariableGroupNode, 9> VariableGroups{{
    {variables::VariableGroup::Standard, "Standard variables", "standard"},
    {variables::VariableGroup::ExternalInput, "External inputs", "input"},
    {variables::VariableGroup::Gps, "GPS variables", "gps"},
    {variables::VariableGroup::UserDefined, "User defined variables", "user"},
    {variables::VariableGroup::Serial, "Serial variables", "serial"},
    {variables::VariableGroup::External, "External variables", "external"},
    {variables::VariableGroup::Debugging, "Debugging variables", "debug"},
    {variables::VariableGroup::LapTiming, "Lap timing variables", "laptime"},
    {variables::VariableGroup::Misc, "Misc variables", "misc"},
}};

// What a line is about, as its key says it.
namespace role {

inline constexpr QLatin1String Variable{"AVAILABLETYPE"}; // itself, and the branch of its advanced options
inline constexpr QLatin1String MaximumRoc{"MAXROC"};
inline constexpr QLatin1String Unit{"TRANSFORMTYPE"};
inline constexpr QLatin1String Name{"USERNAME"};
inline constexpr QLatin1String Smoothing{"SMOOTHING"};

} // namespace role

// One line below a variable.
struct VariableDetail
{
    QLatin1String role;
    QString text;
    const char *art;
    std::vector<VariableDetail> children = {};

    const char *field = ""; // stands after the key where another node has the same role and index

    QString key(int index) const;
};

// "#", the role, "#", the catalogue index.
QString variableKey(QLatin1String role, int index);

// The name and, in brackets, the channel it comes from.
QString variableText(const variables::VariableRecord &record);
std::vector<VariableDetail> variableDetails(const variables::VariableRecord &record, int index,
                                            const variables::UnitTable &units, const QString &decimalMark);

} // namespace surface
