#include "shell/commands.h"

#include "shell/rows/command_rows.h"

#include <algorithm>
#include <vector>

namespace shell {

namespace {

std::vector<Command> allRows()
{
    std::vector<Command> all;
    for (const auto rows :
         {fileRows(), viewRows(), configurationRows(), toolsRows(), helpRows(), editingRows()})
        all.insert(all.end(), rows.begin(), rows.end());
    return all;
}

} // namespace

std::span<const Command> commands()
{
    static const std::vector<Command> All = allRows();
    return All;
}

bool isOffered(const Command &row, platform::Personality personality)
{
    return !row.isMorvelOnly || personality == platform::Personality::MORVEL;
}

bool livesInPreview(unsigned places)
{
    const auto rows = commands();
    return std::any_of(rows.begin(), rows.end(),
                       [places](const Command &row) { return row.inPreview && (row.places & places); });
}

} // namespace shell
