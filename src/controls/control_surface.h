#pragma once

#include "controls/control_type.h"
#include "recorder/recorder_settings.h"

#include <QImage>
#include <QList>

namespace controls {

class OverlayControl;

// The face of the design canvas that the layout writer and reader need.
class ControlSurface
{
public:
    virtual ~ControlSurface() = default;

    // All controls of the layout, in the order in which they were created.
    virtual QList<OverlayControl *> controls() const = 0;
    // A fresh control at the family's next free index, not shown yet.
    virtual OverlayControl &loadControl(ControlType family) = 0;
    // Shows a control that was loaded, above all others.
    virtual void showControl(OverlayControl &control) = 0;
    // The overlay as the recorder would draw it, without frames and grid.
    virtual QImage renderPreview() const = 0;
    // The full PAL or NTSC command.
    virtual void setVideoStandard(recorder::VideoStandard standard) = 0;
    // What stands beside the controls, after a load: variable tree, settings.
    virtual void refresh() = 0;
};

} // namespace controls
