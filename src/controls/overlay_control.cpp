#include "controls/overlay_control.h"

#include <QPainter>

namespace controls {

QColor toQColor(quint32 packed)
{
    return QColor::fromRgb(packed & 0xFF, (packed >> 8) & 0xFF, (packed >> 16) & 0xFF);
}

OverlayControl::OverlayControl(const Family &family, ControlHost &host, QWidget *canvas)
    : QWidget(canvas), m_family(family), m_host(host)
{
    setObjectName(QLatin1String(family.name));
    setAccessibleName(QLatin1String(family.caption));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAcceptDrops(true);
    setAttribute(Qt::WA_OpaquePaintEvent); // frame and inner area cover everything: a drag repaints less
    setVisible(false);
}

void OverlayControl::setBox(const Box &box)
{
    const bool sized = box.Width != values().box.Width || box.Height != values().box.Height;
    values().box = box;
    if (sized)
        sizeChanged();
    placeWidget();
}

void OverlayControl::moveTo(float left, float top)
{
    values().box.Left = left;
    values().box.Top = top;
    placeWidget();
}

void OverlayControl::placeWidget()
{
    setGeometry(pixelRect(box(), screen()));
    m_handleTable = handleTable(box().Width, box().Height, grips());
    update();
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

PropertyValue OverlayControl::read(std::string_view reader) const
{
    const PropertyRow *row = properties().reader(reader);
    if (!row)
        throw common::RunTimeError(QStringLiteral("No such property"));
    return row->get(values(), screen());
}

void OverlayControl::write(std::string_view writer, const PropertyValue &value)
{
    const PropertyRow *row = properties().writer(writer);
    if (!row)
        throw common::RunTimeError(QStringLiteral("No such property"));
    row->set(values(), value);
}

QStringList OverlayControl::Serialise() const
{
    return serialise(properties(), values(), screen(), m_host.locale().decimalSeparator);
}

void OverlayControl::Deserialise(const QStringList &texts)
{
    deserialise(properties(), values(), texts, m_host.locale().decimalSeparator);
    placeWidget();
    settle();
}

void OverlayControl::setColour(quint32 colour, quint32 /*unused*/)
{
    m_backColour = colour;
    update();
}

void OverlayControl::setMode(Mode mode)
{
    m_mode = mode;
    update();
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
    update();
}

void OverlayControl::setBackImage(const QImage &capture)
{
    m_backImage = capture;
    update();
}

void OverlayControl::bindVariable(qint32 variable)
{
    write("newVarID", variable);
    m_host.UserControlChanged();
    update();
}

void OverlayControl::mnuCopy_Click() { emit Copy(Serialise()); }

void OverlayControl::mnuCut_Click() { emit Cut(Serialise()); }

void OverlayControl::mnuDelete_Click() { emit Delete(); }

void OverlayControl::mnuProperties_Click()
{
    if (m_family.showProperties)
        m_family.showProperties(*this);
    // The layout counts as changed whatever the user did in the dialog: deliberate.
    m_host.UserControlChanged();
}

QRect OverlayControl::innerRect() const
{
    const int dx = common::toIntegerClamped<int>(FrameTwips / screen().tx);
    const int dy = common::toIntegerClamped<int>(FrameTwips / screen().ty);
    return rect().adjusted(dx, dy, -dx, -dy);
}

namespace {

// Diagonal bands 60 twips wide, 80 apart.
void paintHatch(QPainter &painter, const QSize &size, const platform::Screen &screen, const QColor &colour)
{
    constexpr double Step = 140;
    constexpr double Band = 60;
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    const double tx = static_cast<double>(screen.tx);
    const double ty = static_cast<double>(screen.ty);
    const double end = size.width() * tx + size.height() * ty;
    for (int n = 0; n * Step <= end; ++n) {
        const double i = n * Step;
        const QPointF band[] = {{0, i / ty}, {0, (i + Band) / ty}, {(i + Band) / tx, 0}, {i / tx, 0}};
        painter.drawConvexPolygon(band, 4);
    }
}

void paintGrips(QPainter &painter, const HandleTable &table, const platform::Screen &screen)
{
    const double tx = static_cast<double>(screen.tx);
    const double ty = static_cast<double>(screen.ty);
    painter.setPen(Qt::black);
    painter.setBrush(Qt::white);
    for (const GripBox &grip : table) {
        if (grip.isFilled())
            painter.drawRect(QRectF(QPointF(grip.Left / tx, grip.Top / ty),
                                    QPointF(grip.Right / tx - 1, grip.Bottom / ty - 1)));
    }
}

} // namespace

void OverlayControl::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect inner = innerRect();
    if (m_mode == Mode::Play) {
        painter.fillRect(rect(), toQColor(m_backColour));
        return;
    }
    painter.save();
    painter.setClipRegion(QRegion(rect()).subtracted(inner));
    painter.fillRect(rect(), m_gridColour == FrameNormal ? QColor(Qt::white) : toQColor(m_gridColour));
    paintHatch(painter, size(), screen(), palette().color(QPalette::Dark));
    paintGrips(painter, m_handleTable, screen());
    painter.restore();
    painter.setClipRect(inner);
    painter.translate(inner.topLeft());
    paintInner(painter, inner.size());
}

} // namespace controls
