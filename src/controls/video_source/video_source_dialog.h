#pragma once

#include "controls/property_dialog.h"
#include "controls/video_source/video_source.h"

namespace controls {

// A source as its dialog shows it.
struct ShownVideoSource : VideoSourceValues
{
    qint8 hue;      // signed
    bool isLimited; // hidden outside the limits
};

// Where a source that is typed to stand at `place` comes to stand on a canvas of this standard, pixels.
QPoint placeOnCanvas(QPoint place, const forms::Typed &typed, recorder::VideoStandard standard);

std::optional<forms::Verdict> validateVideoSource(const forms::Typed &typed,
                                                  recorder::VideoStandard standard);

// "Video Source Properties".
class VideoSourceDialog final : public PropertyDialog<VideoSource, ShownVideoSource>
{
public:
    explicit VideoSourceDialog(VideoSource &source);

protected:
    std::optional<forms::Verdict> validate(const forms::Typed &typed) const override
    {
        return validateVideoSource(typed, host().VideoType());
    }
    void set(ShownVideoSource &values) override;

private:
    void addSize();
    void addBorders();
    void addCamera();
    void addLimits();
};

} // namespace controls
