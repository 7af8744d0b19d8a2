#include "surface/canvas.h"

#include "graphics/scan_lines.h"
#include "surface/canvas_accessible.h"
#include "surface/control_text.h"
#include "surface/safe_areas.h"

#include <QPaintEvent>

#include <utility>

namespace surface {

using controls::Drawing;
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

void paintDots(QImage &picture, QRgb ink, const CanvasRules &rules)
{
    if (rules.grid.spacing < 1)
        return;
    const QList<int> columns = dottedPixels(rules, &platform::Screen::toPixelsX, picture.width());
    for (const int row : dottedPixels(rules, &platform::Screen::toPixelsY, picture.height())) {
        QRgb *pixels = graphics::pixelsOf(picture, row);
        for (const int column : columns)
            pixels[column] = ink;
    }
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
    connect(this, &Canvas::selectionChanged, this, &Canvas::tellCurrent);
}

void Canvas::display(const QImage &background, const CanvasRules &rules, bool dots)
{
    m_rules = rules;
    const QSize size = recorder::canvasSize(rules.standard);
    setFixedSize(m_zoom.shown(QRect(QPoint(), size)).size());
    m_ground = groundOf(size, background);
    QImage dotted = m_ground;
    if (dots)
        paintDots(dotted, palette().color(QPalette::Active, QPalette::WindowText).rgb(), rules);
    m_picture.reset(dotted, FramePainter(rules.screen, palette().color(QPalette::Active, QPalette::Dark)),
                    m_isPlayMode ? Drawing::Recorded : Drawing::Designed);
    update();
}

void Canvas::setPlayMode(bool playMode)
{
    endGesture();
    unsetCursor();
    m_isPlayMode = playMode;
    for (OverlayControl *control : m_controls.controls())
        control->setMode(playMode ? OverlayControl::Mode::Play : OverlayControl::Mode::Design);
}

void Canvas::setZoom(int percent)
{
    m_zoom = Zoom(percent);
    m_picture.setZoom(m_zoom);
    setFixedSize(m_zoom.shown(m_ground.rect()).size());
    update();
}

void Canvas::setSafeAreas(bool shown)
{
    m_showsSafeAreas = shown;
    update();
}

void Canvas::choose(OverlayControl &control)
{
    m_selection.select(control);
    BringToFront(control);
}

void Canvas::BringToFront(OverlayControl &control)
{
    if (m_controls.raise(control))
        control.redraw();
    m_selection.setCurrent(control);
    tellFocus(*this, control);
    emit selectionChanged();
}

void Canvas::tellCurrent()
{
    const OverlayControl *control = current();
    const QString text = control ? controlText(*control) : QString();
    if (text != std::exchange(m_currentText, text))
        emit currentShown(text);
}

void Canvas::chooseNone()
{
    m_selection.ResetControlGridColour();
    m_selection.dropCurrent();
    emit selectionChanged();
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
    m_lifted.removeOne(&control);
    control.SetControlGridColour(controls::FrameNormal); // who still holds it holds no member of the group
    m_controls.unload(control);
    m_selection.dropCurrent();
    m_picture.touch(area);
    updateShown(area);
    emit selectionChanged();
}

void Canvas::clear()
{
    endGesture();
    m_selection.ResetControlGridColour();
    m_controls.clear();
    m_selection.dropCurrent();
    m_picture.touch(m_ground.rect());
    update();
    emit selectionChanged();
}

void Canvas::redrawControl(const OverlayControl &control, const QRect &area)
{
    if (m_lifted.contains(&control)) {
        m_liftedArea |= area; // one rectangle is painted faster than those of all members of a group
        updateShown(m_liftedArea);
        return;
    }
    m_picture.touch(area);
    updateShown(area);
    if (current() == &control) // one that is lifted tells its place when it has landed
        tellCurrent();
}

void Canvas::updateShown(const QRect &area) { update(m_zoom.shown(area.adjusted(-Seam, -Seam, Seam, Seam))); }

void Canvas::showPosition(const OverlayControl &control)
{
    emit positionShown(positionText(QPointF(control.box().Left, control.box().Top), m_rules.screen));
}

void Canvas::setBand(const std::optional<QRect> &band)
{
    // Only the old and the new outline are painted again.
    for (const auto &outline : {m_band, band}) {
        if (outline)
            update(m_zoom.shown(*outline).adjusted(-1, -1, 2, 2));
    }
    m_band = band;
}

void Canvas::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    // At some zooms the picture ends short of the last pixel of a fine screen.
    if (const QRect within = rect().adjusted(0, 0, -1, -1); !within.contains(event->rect())) {
        for (const QRect &edge : QRegion(event->rect()) - within)
            painter.fillRect(edge, palette().color(QPalette::Mid));
    }
    m_liftedArea = {};
    const ControlList &order = m_isPlayMode ? m_controls.controls() : m_controls.stack();
    m_picture.paint(painter, event->rect(), order, m_lifted);
    if (m_showsSafeAreas && !m_isPlayMode)
        paintSafeAreas(painter, size());
    paintBand(painter);
}

void Canvas::paintBand(QPainter &painter) const
{
    if (!m_band)
        return;
    const QRect outline = m_zoom.shown(*m_band);
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRect(outline);
    painter.setPen(QPen(Qt::black, 1, Qt::DashLine));
    painter.drawRect(outline);
}

} // namespace surface
