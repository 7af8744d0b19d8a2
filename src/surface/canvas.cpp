#include "surface/canvas.h"

#include "surface/canvas_accessible.h"

#include <QPaintEvent>

namespace surface {

using controls::OverlayControl;

namespace {

// The pixels below `end` on which the multiples of the grid's spacing fall, each once: a spacing may be finer
// than the pixels.
QList<int> dottedPixels(const CanvasRules &rules, float (platform::Screen::*toPixels)(float) const, int end)
{
    QList<int> pixels;
    for (int line = 0;; ++line) {
        const int pixel =
            static_cast<int>((rules.screen.*toPixels)(static_cast<float>(line * rules.grid.spacing)));
        if (pixel >= end)
            return pixels;
        if (pixels.isEmpty() || pixel != pixels.last())
            pixels.append(pixel);
    }
}

void paintDots(QPainter &painter, const QSize &size, const CanvasRules &rules)
{
    if (rules.grid.spacing < 1)
        return;
    const QList<int> columns = dottedPixels(rules, &platform::Screen::toPixelsX, size.width());
    QList<QPoint> dots;
    for (const int row : dottedPixels(rules, &platform::Screen::toPixelsY, size.height())) {
        for (const int column : columns)
            dots.append({column, row});
    }
    painter.drawPoints(dots.constData(), static_cast<int>(dots.size()));
}

} // namespace

Canvas::Canvas()
{
    makeCanvasAccessible(); // before a name is told to anyone
    setObjectName(QStringLiteral("pic"));
    setAccessibleName(QStringLiteral("Design canvas"));
    setMouseTracking(true);
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Canvas::display(const QImage &background, const CanvasRules &rules, bool dots)
{
    m_rules = rules;
    const QSize size(recorder::CanvasWidth, recorder::canvasHeight(rules.standard));
    setFixedSize(size);
    m_ground = groundOf(size, background);
    QImage dotted = m_ground;
    if (dots) {
        QPainter painter(&dotted);
        painter.setPen(palette().color(QPalette::Active, QPalette::WindowText));
        paintDots(painter, size, rules);
    }
    m_picture.reset(dotted, FramePainter(rules.screen, palette().color(QPalette::Active, QPalette::Dark)));
    update();
}

void Canvas::choose(OverlayControl &control, bool joinsGroup)
{
    if (!joinsGroup)
        select(control);
    if (m_controls.raise(control))
        control.redraw();
    m_current = control.weak_from_this();
    tellFocus(*this, control);
}

void Canvas::chooseNone()
{
    ResetControlGridColour();
    m_current.reset();
}

void Canvas::ResetControlGridColour()
{
    for (const auto &marked : std::exchange(m_marked, {})) {
        if (const auto control = marked.lock())
            control->SetControlGridColour(controls::FrameNormal);
    }
}

void Canvas::select(OverlayControl &control)
{
    if (control.IsSelectedToGroup())
        return;
    ResetControlGridColour();
    control.SetControlGridColour(controls::FrameSelected);
    m_marked.push_back(control.weak_from_this());
}

void Canvas::setGroup(OverlayControl &control, bool joins)
{
    control.SetControlGroup(joins ? 1 : 0);
    m_marked.push_back(control.weak_from_this());
}

void Canvas::showControl(OverlayControl &control)
{
    m_controls.show(control);
    control.redraw();
}

void Canvas::unload(OverlayControl &control)
{
    const QRect area = control.area();
    if (m_gesture.control().get() == &control)
        endGesture();
    m_controls.unload(control);
    m_current.reset();
    m_picture.touch(area);
    update(area);
}

void Canvas::clear()
{
    endGesture();
    m_controls.clear();
    m_current.reset();
    m_picture.touch(rect());
    update();
}

void Canvas::redrawControl(const OverlayControl &control, const QRect &area)
{
    if (lifted().get() != &control)
        m_picture.touch(area);
    update(area);
}

// A gesture's control stands above all others from its first movement on.
std::shared_ptr<OverlayControl> Canvas::lifted() const
{
    return m_gesture.hasBegun() ? m_gesture.control() : nullptr;
}

void Canvas::showPosition(const OverlayControl &control)
{
    emit positionShown(positionText(QPointF(control.box().Left, control.box().Top), m_rules.screen));
}

void Canvas::setBand(const std::optional<QRect> &band)
{
    // Only the old and the new outline are painted again.
    for (const auto &outline : {m_band, band}) {
        if (outline)
            update(outline->adjusted(-1, -1, 2, 2));
    }
    m_band = band;
}

void Canvas::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    m_picture.paint(painter, event->rect(), m_controls.stack(), lifted().get());
    paintBand(painter);
}

void Canvas::paintBand(QPainter &painter) const
{
    if (!m_band)
        return;
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRect(*m_band);
    painter.setPen(QPen(Qt::black, 1, Qt::DashLine));
    painter.drawRect(*m_band);
}

} // namespace surface
