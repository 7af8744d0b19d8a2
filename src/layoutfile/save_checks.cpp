#include "layoutfile/save_checks.h"

#include <algorithm>
#include <set>

namespace layoutfile {

QString saveComplaint(const DesignCounts &counts)
{
    if (counts.trackMaps > 1)
        return QStringLiteral("System does not support more than one Track Map");
    if (counts.fullFrameSources > 1)
        return QStringLiteral("You can't use multiple Video Sources as background video\n"
                              "Please select one Video Source as a background video");
    if (counts.controls == 0)
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
