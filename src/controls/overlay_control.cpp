#include "controls/overlay_control.h"

namespace controls {

namespace {

const PropertyRow &found(const PropertyRow *row)
{
    if (!row)
        throw common::RunTimeError(QStringLiteral("No such property"));
    return *row;
}

} // namespace

QColor toQColor(quint32 packed) { return QColor(common::toPixel(packed)); }

void OverlayControl::setBox(const Box &box)
{
    const bool sized = box.Width != values().box.Width || box.Height != values().box.Height;
    values().box = box;
    if (sized)
        sizeChanged();
    redraw();
}

void OverlayControl::moveTo(float left, float top)
{
    values().box.Left = left;
    values().box.Top = top;
    redraw();
}

QRect OverlayControl::innerRect() const
{
    const int dx = common::toIntegerClamped<int>(screen().toPixelsX(FrameTwips));
    const int dy = common::toIntegerClamped<int>(screen().toPixelsY(FrameTwips));
    return outerRect().adjusted(dx, dy, -dx, -dy);
}

Box OverlayControl::resizedBox(const Box &wanted, Handle) const { return wanted; }

void OverlayControl::fitCanvasHeight(float height)
{
    Box fitted = box();
    if (fitted.bottom() <= height)
        return;
    if (fitted.Height > height) {
        fitted.Top = 0;
        fitted.Height = height;
    } else {
        fitted.Top = height - fitted.Height;
    }
    setBox(fitted);
    updatePosition();
}

void OverlayControl::pullUp(float height)
{
    if (box().bottom() <= height)
        return;
    moveTo(box().Left, height - box().Height);
    updatePosition();
}

QPointF OverlayControl::nudged(QPointF place, QPoint step, float frame) const
{
    Box within = box();
    within.Width -= static_cast<float>(overhang().right());
    within.Height -= static_cast<float>(overhang().bottom());
    const QPointF stopped = pulledInto(place + step, within, frame, m_host.VideoType(), screen());
    return {controls::nudged(place.x(), step.x(), stopped.x()),
            controls::nudged(place.y(), step.y(), stopped.y())};
}

PropertyValue OverlayControl::read(std::string_view reader) const
{
    return found(properties().reader(reader)).get(values(), screen());
}

void OverlayControl::write(std::string_view writer, const PropertyValue &value)
{
    found(properties().writer(writer)).set(values(), value);
}

QStringList OverlayControl::Serialise() const
{
    return serialise(properties(), values(), screen(), m_host.locale().decimalSeparator);
}

void OverlayControl::Deserialise(const QStringList &texts)
{
    deserialise(properties(), values(), texts, m_host.locale().decimalSeparator);
    settle();
    redraw();
}

void OverlayControl::setMode(Mode mode)
{
    m_mode = mode;
    redraw();
}

void OverlayControl::SetControlGridColour(quint32 colour)
{
    m_isGrouped = false;
    setGridColour(colour);
}

void OverlayControl::SetControlGroup(quint8 flag)
{
    m_isGrouped = flag == 1;
    setGridColour(m_isGrouped ? FrameGrouped : FrameNormal);
}

void OverlayControl::setGridColour(quint32 colour)
{
    if (m_gridColour == colour)
        return;
    m_gridColour = colour;
    redraw();
}

void OverlayControl::redraw()
{
    const QRect now = area();
    const QRect before = std::exchange(m_shownArea, now);
    if (before.intersects(now)) // one rectangle is painted faster than a region
        return m_host.redrawControl(*this, before.united(now));
    m_host.redrawControl(*this, before);
    m_host.redrawControl(*this, now);
}

void OverlayControl::bindVariable(qint32 variable)
{
    write("newVarID", variable);
    m_host.UserControlChanged();
    redraw();
}

void OverlayControl::mnuProperties_Click()
{
    // The layout counts as changed whatever the user will do in the dialog: deliberate.
    m_host.UserControlChanged();
    m_host.showProperties(*this);
}

} // namespace controls
