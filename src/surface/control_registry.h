#pragma once

#include "controls/families.h"
#include "controls/overlay_control.h"

#include <QList>
#include <QPointer>

namespace surface {

// The controls of the layout in the order in which they were created, whatever their stacking. An instance is
// identified by family and index; index 0 of each family is its template and never part of the layout.
class ControlRegistry
{
public:
    QList<controls::OverlayControl *> controls() const { return m_controls; }
    bool isEmpty() const { return m_controls.isEmpty(); }

    // Creates a control of the family at `index`, or at the next free one behind it, which is answered in
    // `index`. Null for a family that cannot be made.
    controls::OverlayControl *loadControl(controls::ControlType family, int &index,
                                          controls::ControlHost &host, QWidget *canvas);
    // How many elements the family has, its template counted.
    int count(controls::ControlType family) const;
    // Takes the control off the layout at once and deletes it when its events are done.
    void unload(controls::OverlayControl *control);
    void clear();

private:
    bool isTaken(controls::ControlType family, int index) const;

    QList<controls::OverlayControl *> m_controls;
};

} // namespace surface
