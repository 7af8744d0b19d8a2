#pragma once

#include "controls/property_dialog.h"
#include "controls/track_map/track_map.h"

namespace controls {

std::optional<forms::Verdict> validateTrackMap(const forms::Typed &typed, recorder::VideoStandard standard);

// "Track Map Properties".
class TrackMapDialog final : public PropertyDialog<TrackMapValues>
{
public:
    explicit TrackMapDialog(TrackMap &map);

protected:
    std::optional<forms::Verdict> validate(const forms::Typed &typed) const override
    {
        return validateTrackMap(typed, m_map.host().VideoType());
    }
    void set(TrackMapValues &values) override;
    void applied() override { m_map.AssignProperties(); }

private:
    void addBoxRows();
    void addTrackRows();
    void addScaleRows();

    TrackMap &m_map;
};

} // namespace controls
