#include "surface/control_registry.h"

#include <algorithm>

namespace surface {

using controls::ControlType;
using controls::OverlayControl;

OverlayControl *ControlRegistry::loadControl(ControlType type, int &index, controls::ControlHost &host,
                                             QWidget *canvas)
{
    const controls::Family *family = controls::familyOf(type);
    if (!family || !family->create)
        return nullptr;
    while (isTaken(type, index))
        ++index;
    OverlayControl *control = family->create(*family, host, canvas);
    control->setIndex(index);
    m_controls.append(control);
    return control;
}

int ControlRegistry::count(ControlType type) const
{
    return 1 + static_cast<int>(
                   std::count_if(m_controls.begin(), m_controls.end(),
                                 [type](const OverlayControl *c) { return c->family().type == type; }));
}

bool ControlRegistry::isTaken(ControlType type, int index) const
{
    return index == 0 ||
           std::any_of(m_controls.begin(), m_controls.end(), [type, index](const OverlayControl *c) {
               return c->family().type == type && c->Index() == index;
           });
}

void ControlRegistry::unload(OverlayControl *control)
{
    if (m_controls.removeOne(control)) {
        control->hide();
        control->deleteLater();
    }
}

void ControlRegistry::clear()
{
    while (!m_controls.isEmpty())
        unload(m_controls.last());
}

} // namespace surface
