#pragma once

#include "controls/property_dialog.h"
#include "controls/track_map/track_map.h"

namespace controls {

std::optional<forms::Verdict> validateTrackMap(const forms::Typed &typed, recorder::VideoStandard standard);

// "Track Map Properties".
class TrackMapDialog final : public PropertyDialog<TrackMap, TrackMapValues>
{
public:
    explicit TrackMapDialog(TrackMap &map);

protected:
    std::optional<forms::Verdict> validate(const forms::Typed &typed) const override
    {
        return validateTrackMap(typed, host().VideoType());
    }
    void set(TrackMapValues &values) override;

private:
    void addBoxRows();
    void addTrackRows();
    void addScaleRows();
};

} // namespace controls
