#pragma once

#include "platform/screen.h"
#include "platform/settings_keys.h"
#include "surface/panel.h"
#include "surface/panel_layout.h"

#include <QWidget>

#include <array>

namespace surface {

// The area of the design window that holds the three panels. Until somebody arranges them (the user, or
// stored geometry) they fill the area; then they stay where they were put, as far as that is in view.
class PanelArea final : public QWidget
{
    Q_OBJECT

public:
    PanelArea(const platform::Screen &screen, const std::array<std::pair<QString, QWidget *>, 3> &panels);

    Panel &panel(PanelId id) const { return *m_panels[static_cast<std::size_t>(id)]; }
    bool isPanelVisible(PanelId id) const { return m_visible[static_cast<std::size_t>(id)]; }
    void setPanelVisible(PanelId id, bool visible);

    // The keyboard focus to the next or previous open panel, where it was last inside it.
    void stepPanel(bool forward);
    // All panels open, where a first start lays them out.
    void reset();

    void restore(const platform::SettingsFile &file);
    void save(platform::SettingsFile &file) const;

signals:
    void visibilityChanged(surface::PanelId id, bool visible);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    PanelRects current() const;
    void arrange(const QSize &area);

    platform::Screen m_screen;
    std::array<Panel *, 3> m_panels{};
    std::array<bool, 3> m_visible{true, true, true};
    bool m_automatic = true;
    PanelRects m_wanted{}; // where they were put
};

} // namespace surface
