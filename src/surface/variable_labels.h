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
    const char *image; // image letter
    const char *art;   // icon in the resources
    QString key() const { return QStringLiteral("VT_%1").arg(static_cast<int>(group)); }
};

inline constexpr std::array<VariableGroupNode, 9> VariableGroups{{
    {variables::VariableGroup::Standard, "Standard variables", "N", "standard"},
    {variables::VariableGroup::ExternalInput, "External inputs", "I", "input"},
    {variables::VariableGroup::Gps, "GPS variables", "G", "gps"},
    {variables::VariableGroup::UserDefined, "User defined variables", "U", "user"},
    {variables::VariableGroup::Serial, "Serial variables", "S", "serial"},
    {variables::VariableGroup::External, "External variables", "E", "external"},
    {variables::VariableGroup::Debugging, "Debugging variables", "D", "debug"},
    {variables::VariableGroup::LapTiming, "Lap timing variables", "T", "laptime"},
    {variables::VariableGroup::Misc, "Misc variables", "M", "misc"},
}};

// One line below a variable.
struct VariableDetail
{
    const char *role;
    QString text;
    const char *art;
    std::vector<VariableDetail> children = {};

    const char *field = ""; // stands after the key where another node has the same role and index

    QString key(int index) const;
};

// "#", the role, "#", the catalogue index.
QString variableKey(const char *role, int index);

// The name and, in brackets, the channel it comes from.
QString variableText(const variables::VariableRecord &record);
std::vector<VariableDetail> variableDetails(const variables::VariableRecord &record, int index,
                                            const variables::UnitTable &units, const QString &decimalMark);

} // namespace surface
