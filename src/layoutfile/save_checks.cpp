#include "layoutfile/save_checks.h"

#include "layoutfile/family_records.h"

#include <algorithm>
#include <set>

namespace layoutfile {

QString saveComplaint(const std::vector<ControlKind> &design)
{
    const auto moreThanOne = [&design](auto &&test) {
        return std::count_if(design.begin(), design.end(), test) > 1;
    };
    for (const FamilyRecord &row : familyRecords()) {
        if (row.secondRefused && moreThanOne([&row](ControlKind kind) { return kind.family == row.family; }))
            return QLatin1String(row.secondRefused);
    }
    if (moreThanOne([](ControlKind kind) { return kind.isFullFrame; }))
        return QStringLiteral("You can't use multiple Video Sources as background video\n"
                              "Please select one Video Source as a background video");
    if (design.empty())
        return QStringLiteral("System can't detect any object(s) to save");
    return {};
}

bool sharesCamera(const std::vector<LayoutRecord> &sources)
{
    std::set<quint8> cameras;
    return std::any_of(sources.begin(), sources.end(), [&cameras](const LayoutRecord &source) {
        return !cameras.insert(std::get<VideoSourceRecord>(source.body).cameraNo).second;
    });
}

} // namespace layoutfile
