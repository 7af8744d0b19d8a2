#include "surface/panel_area.h"

#include "surface/canvas_rules.h"

#include <QResizeEvent>

#include <utility>

namespace surface {

namespace {

using platform::PanelKeys;
namespace keys = platform::keys;

const PanelKeys &keysOf(std::size_t panel)
{
    static constexpr std::array<const PanelKeys *, 3> Keys{&keys::Functions, &keys::Library, &keys::Design};
    return *Keys[panel];
}

} // namespace

PanelArea::PanelArea(const platform::Screen &screen,
                     const std::array<std::pair<QString, QWidget *>, 3> &panels)
    : m_screen(screen)
{
    for (std::size_t i = 0; i < panels.size(); ++i) {
        m_panels[i] = new Panel(panels[i].first, panels[i].second, this);
        connect(m_panels[i], &Panel::closeRequested, this,
                [this, i] { setPanelVisible(static_cast<PanelId>(i), false); });
        connect(m_panels[i], &Panel::arranged, this, [this] {
            m_automatic = false;
            m_wanted = current();
        });
    }
}

void PanelArea::setPanelVisible(PanelId id, bool visible)
{
    m_visible[static_cast<std::size_t>(id)] = visible;
    panel(id).setVisible(visible);
    if (visible)
        panel(id).raise();
    emit visibilityChanged(id, visible);
}

void PanelArea::stepPanel(bool forward)
{
    const QWidget *focused = window()->focusWidget();
    QList<Panel *> open;
    qsizetype from = -1;
    for (std::size_t i = 0; i < m_panels.size(); ++i) {
        if (!m_visible[i])
            continue;
        if (m_panels[i]->isAncestorOf(focused))
            from = open.size();
        open.append(m_panels[i]);
    }
    if (const qsizetype next = stepInRing(open.size(), from, forward); next >= 0)
        open[next]->takeFocus();
}

void PanelArea::reset()
{
    m_automatic = true;
    arrange(size());
    for (std::size_t i = 0; i < m_panels.size(); ++i)
        setPanelVisible(static_cast<PanelId>(i), true);
}

void PanelArea::restore(const platform::SettingsFile &file)
{
    const platform::SettingsFile nothing({});
    bool stored = false;
    PanelRects unclamped;
    for (std::size_t i = 0; i < m_panels.size(); ++i) {
        const PanelKeys &key = keysOf(i);
        const bool isStored = key.stored(file);
        stored = stored || isStored;
        unclamped[i] = key.readUnclamped(file, m_screen);
        m_wanted[i] = key.read(isStored ? file : nothing, m_screen);
        m_visible[i] = keys::Visible[i].read(file) != 0;
        m_panels[i]->setVisible(m_visible[i]);
    }
    m_automatic = !stored || isDefaultArrangement(unclamped);
}

void PanelArea::save(platform::SettingsFile &file) const
{
    const PanelRects rects = current();
    for (std::size_t i = 0; i < rects.size(); ++i)
        keysOf(i).write(file, rects[i], m_screen);
}

PanelRects PanelArea::current() const
{
    PanelRects rects;
    for (std::size_t i = 0; i < rects.size(); ++i)
        rects[i] = m_panels[i]->geometry();
    return rects;
}

void PanelArea::resizeEvent(QResizeEvent *event) { arrange(event->size()); }

void PanelArea::arrange(const QSize &area)
{
    const PanelRects rects = m_automatic ? defaultPanels(area) : m_wanted;
    for (std::size_t i = 0; i < rects.size(); ++i)
        m_panels[i]->setGeometry(pulledIntoView(rects[i], area));
}

} // namespace surface
