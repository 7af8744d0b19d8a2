#include "surface/control_registry.h"

#include <algorithm>
#include <utility>

namespace surface {

using controls::ControlType;
using controls::OverlayControl;

namespace {

// Keeps controls alive until the events that act on them are done.
struct Departure final : QObject
{
    Departure(QObject *registry, std::vector<std::shared_ptr<OverlayControl>> leaving)
        : QObject(registry), controls(std::move(leaving))
    {
        deleteLater();
    }

    std::vector<std::shared_ptr<OverlayControl>> controls;
};

} // namespace

OverlayControl &ControlRegistry::loadControl(ControlType type, controls::ControlHost &host)
{
    int index = count(type);
    while (m_indices[type].contains(index))
        ++index;
    const auto control = controls::factoryOf(type)(*controls::familyOf(type), host);
    control->setIndex(index);
    m_owned.push_back(control);
    m_controls.append(control.get());
    m_indices[type].insert(index);
    return *control;
}

int ControlRegistry::count(ControlType type) const
{
    return 1 + static_cast<int>(m_indices.value(type).size());
}

bool ControlRegistry::raise(OverlayControl &control)
{
    if (m_stack.isEmpty() || m_stack.last() == &control || !m_stack.removeOne(&control))
        return false;
    m_stack.append(&control);
    return true;
}

bool ControlRegistry::restack(OverlayControl &control, bool above)
{
    const qsizetype from = m_stack.indexOf(&control);
    if (from < 0)
        return false;
    qsizetype to = from;
    for (qsizetype i = 0; i < m_stack.size(); ++i) {
        if (m_stack[i]->family().type == control.family().type)
            to = above ? std::max(to, i) : std::min(to, i);
    }
    m_stack.move(from, to);
    return to != from;
}

void ControlRegistry::unload(OverlayControl &control)
{
    const qsizetype place = m_controls.indexOf(&control);
    if (place < 0)
        return;
    m_controls.removeAt(place);
    m_stack.removeOne(&control);
    m_indices[control.family().type].remove(control.Index());
    const auto owned = m_owned.begin() + place;
    new Departure(&m_departures, {std::move(*owned)});
    m_owned.erase(owned);
}

void ControlRegistry::clear()
{
    m_controls.clear();
    m_stack.clear();
    m_indices.clear();
    new Departure(&m_departures, std::exchange(m_owned, {}));
}

} // namespace surface
