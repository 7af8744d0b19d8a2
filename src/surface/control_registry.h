#pragma once

#include "controls/factories.h"
#include "controls/overlay_control.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QSet>

#include <vector>

namespace surface {

// The controls of the layout: in the order in which they were created, which is the order of the layout, and
// those that are shown in their stack. An instance is identified by family and index; index 0 of each family
// is its template and never part of the layout.
class ControlRegistry
{
public:
    const QList<controls::OverlayControl *> &controls() const { return m_controls; }
    // From the bottom to the top.
    const QList<controls::OverlayControl *> &stack() const { return m_stack; }

    // Creates a control of the family at the next free index; it is not shown yet.
    controls::OverlayControl &loadControl(controls::ControlType family, controls::ControlHost &host);
    // How many elements the family has, its template counted.
    int count(controls::ControlType family) const;
    // Puts a control that was loaded on the top of the stack.
    void show(controls::OverlayControl &control) { m_stack.append(&control); }
    // False when it stands on the top already.
    bool raise(controls::OverlayControl &control);
    // Puts it above or below all others of its family in the stack. False when it stands so already, or is
    // not in the stack.
    bool restack(controls::OverlayControl &control, bool above);
    // Takes the control off the layout at once; it is deleted when its events are done.
    void unload(controls::OverlayControl &control);
    void clear();

private:
    std::vector<std::shared_ptr<controls::OverlayControl>> m_owned; // like m_controls
    QList<controls::OverlayControl *> m_controls;
    QList<controls::OverlayControl *> m_stack;
    QHash<controls::ControlType, QSet<int>> m_indices; // that are taken
    QObject m_departures;                              // owns the controls that wait for their deletion
};

} // namespace surface
