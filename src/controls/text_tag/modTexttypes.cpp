#include "controls/text_tag/modTexttypes.h"

namespace controls {

namespace {

constexpr int FirstPattern = 5; // rows
constexpr int LastPattern = 11;

} // namespace

QString fieldText(int row, const QString &name)
{
    const qsizetype open = name.indexOf(QLatin1Char('('));
    if (row < FirstPattern || row > LastPattern || open < 0)
        return name;
    return name.mid(open + 1).section(QLatin1Char(')'), 0, 0);
}

} // namespace controls
