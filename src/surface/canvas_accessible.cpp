#include "surface/canvas_accessible.h"

#include "surface/canvas.h"
#include "surface/control_text.h"

#include <QAccessibleWidget>
#include <QHash>

#include <algorithm>

namespace surface {

using controls::OverlayControl;

namespace {

class ControlAccessible final : public QAccessibleInterface
{
public:
    ControlAccessible(Canvas &canvas, OverlayControl &control)
        : m_canvas(canvas), m_control(control.weak_from_this())
    {
    }

    bool isValid() const override { return !m_control.expired(); }
    QObject *object() const override { return nullptr; }
    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(&m_canvas); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Graphic; }
    QAccessible::State state() const override;
    QRect rect() const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString &) override {}

    bool stands(const OverlayControl *control) const { return m_control.lock().get() == control; }

private:
    Canvas &m_canvas;
    std::weak_ptr<OverlayControl> m_control;
};

QAccessible::State ControlAccessible::state() const
{
    QAccessible::State state;
    const auto control = m_control.lock();
    const bool isCurrent = control && control.get() == m_canvas.current();
    state.focusable = state.selectable = true;
    state.selected = isCurrent || (control && control->IsSelectedToGroup());
    state.focused = isCurrent && m_canvas.hasFocus();
    state.invisible = !m_canvas.isVisible();
    return state;
}

QRect ControlAccessible::rect() const
{
    const auto control = m_control.lock();
    if (!control)
        return {};
    const QRect place = m_canvas.zoom().shown(control->outerRect());
    return {m_canvas.mapToGlobal(place.topLeft()), place.size()};
}

// The place is the description.
QString ControlAccessible::text(QAccessible::Text kind) const
{
    const auto control = m_control.lock();
    if (!control)
        return {};
    if (kind == QAccessible::Description) {
        const Box &box = control->box();
        return positionText(QPointF(box.Left, box.Top), control->host().screen());
    }
    return kind == QAccessible::Name ? controlName(*control) : QString();
}

class CanvasAccessible final : public QAccessibleWidget
{
public:
    explicit CanvasAccessible(Canvas &canvas)
        : QAccessibleWidget(&canvas, QAccessible::Canvas), m_canvas(canvas)
    {
    }
    ~CanvasAccessible() override
    {
        for (const QAccessible::Id id : m_children)
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return static_cast<int>(all().size()); }
    QAccessibleInterface *child(int index) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *focusChild() const override;

private:
    const ControlList &all() const { return m_canvas.registry().controls(); }

    Canvas &m_canvas;
    mutable QHash<const OverlayControl *, QAccessible::Id> m_children; // those that were asked for
};

QAccessibleInterface *CanvasAccessible::child(int index) const
{
    OverlayControl *control = all().value(index);
    if (!control)
        return nullptr;
    const auto known = m_children.constFind(control);
    if (known != m_children.constEnd()) {
        QAccessibleInterface *child = QAccessible::accessibleInterface(*known);
        if (child && child->isValid())
            return child;
        QAccessible::deleteAccessibleInterface(*known); // of a control that stood at this address before
    }
    auto *child = new ControlAccessible(m_canvas, *control);
    m_children.insert(control, QAccessible::registerAccessibleInterface(child));
    return child;
}

QAccessibleInterface *CanvasAccessible::childAt(int x, int y) const
{
    const ControlList &stack = m_canvas.registry().stack();
    const QPoint at = m_canvas.mapFromGlobal(QPoint(x, y));
    for (auto control = stack.rbegin(); control != stack.rend(); ++control) {
        if (m_canvas.zoom().shown((*control)->outerRect()).contains(at))
            return child(static_cast<int>(all().indexOf(*control)));
    }
    return nullptr;
}

int CanvasAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    const auto *wanted = dynamic_cast<const ControlAccessible *>(child);
    const ControlList &list = all();
    const auto found = std::find_if(list.begin(), list.end(), [wanted](const OverlayControl *control) {
        return wanted && wanted->stands(control);
    });
    return found == list.end() ? -1 : static_cast<int>(found - list.begin());
}

QAccessibleInterface *CanvasAccessible::focusChild() const
{
    const OverlayControl *current = m_canvas.hasFocus() ? m_canvas.current() : nullptr;
    return current ? child(static_cast<int>(all().indexOf(current))) : nullptr;
}

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    auto *canvas = qobject_cast<Canvas *>(object);
    return canvas ? new CanvasAccessible(*canvas) : nullptr;
}

} // namespace

void makeCanvasAccessible()
{
    QAccessible::installFactory(&makeInterface); // once, however often it is called
}

void tellFocus(Canvas &canvas, const OverlayControl &control)
{
    if (!QAccessible::isActive() || !canvas.hasFocus())
        return;
    QAccessibleEvent event(&canvas, QAccessible::Focus);
    event.setChild(static_cast<int>(canvas.registry().controls().indexOf(&control)));
    QAccessible::updateAccessibility(&event);
}

} // namespace surface
