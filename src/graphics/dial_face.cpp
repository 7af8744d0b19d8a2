#include "graphics/dial_face.h"

#include "common/number_text.h"
#include "graphics/dial_scale.h"
#include "graphics/made_up_style.h"
#include "graphics/scan_lines.h"

#include <QPainter>

#include <algorithm>

namespace graphics {

namespace {

constexpr double PixelsPerPoint = double{DotsPerInch} / PointsPerInch;
constexpr double LargestShare = 4; // of the radius; what lies beyond is out of sight
constexpr double Gap = 1;          // pixels between labels, and between them and the tics
constexpr double SameAngle = 1e-3; // degrees

QColor rgb(const common::Colour &colour) { return QColor(common::toPixel(colour.packed())); }

double radiusOf(QSize size) { return std::min(size.width(), size.height()) / 2.0; }

// The text around a point in this size, with a gap around it.
QRectF boxOf(const TextOutline &text, QPointF middle, double size)
{
    QRectF box({}, text.extent().size() * size + QSizeF(Gap, Gap));
    box.moveCenter(middle);
    return box;
}

bool touchesNone(const QRectF &box, const std::vector<QRectF> &others)
{
    // The last one is the likeliest to be touched.
    return std::none_of(others.rbegin(), others.rend(),
                        [&](const QRectF &other) { return other.intersects(box); });
}

class FacePainter
{
public:
    FacePainter(const DialLook &look, const OutlineFont &font, QImage &picture)
        : m_look(look), m_font(font), m_radius(radiusOf(picture.size())), m_painter(&picture)
    {
        m_painter.translate(picture.width() / 2.0, picture.height() / 2.0);
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.setPen(Qt::NoPen);
    }

    void drawAnnular();
    void drawTics();
    void drawLabels();
    void drawCaption();

private:
    double length(float share) const
    {
        return std::isfinite(share) ? std::clamp(double{share}, -LargestShare, LargestShare) * m_radius : 0;
    }
    double statedSize() const
    {
        const int points = m_look.curFontSize > 0 ? m_look.curFontSize : DialLook::UsualFontSize;
        return std::min(points * PixelsPerPoint, 2 * m_radius);
    }
    std::vector<QRectF> placed(const std::vector<TextOutline> &labels, const std::vector<double> &angles,
                               double size) const;
    void drawTic(double inner, double outer);

    const DialLook &m_look;
    const OutlineFont &m_font;
    double m_radius; // pixels
    std::vector<QRectF> m_labels;
    QPainter m_painter;
};

void FacePainter::drawAnnular()
{
    const double start = angleAt(m_look, double{m_look.curAnnularStart});
    const double sweep = std::clamp(angleAt(m_look, double{m_look.curAnnularStop}) - start, -360.0, 360.0);
    const auto circle = [](double radius) { return QRectF(-radius, -radius, 2 * radius, 2 * radius); };
    constexpr double FromTwelveOClock = 90; // the painter begins at three and runs the other way round
    QPainterPath ring;
    ring.arcMoveTo(circle(length(m_look.curAnnularOuter)), FromTwelveOClock - start);
    ring.arcTo(circle(length(m_look.curAnnularOuter)), FromTwelveOClock - start, -sweep);
    ring.arcTo(circle(length(m_look.curAnnularInner)), FromTwelveOClock - start - sweep, sweep);
    ring.closeSubpath();
    m_painter.setBrush(rgb(m_look.curAnnularColour));
    m_painter.drawPath(ring);
}

void FacePainter::drawTics()
{
    m_painter.setBrush(rgb(m_look.curTicColour));
    for (const Tic &tic : ticsOf(m_look)) {
        m_painter.save();
        m_painter.rotate(tic.angle);
        drawTic(length(m_look.curTicInner), length(m_look.curTicOuter));
        m_painter.restore();
    }
}

// At twelve o'clock.
void FacePainter::drawTic(double inner, double outer)
{
    const double half = length(m_look.curTicWidth) / 2;
    const QRectF box(QPointF(-half, -outer), QPointF(half, -inner));
    const QPointF top(0, -outer), bottom(0, -inner), middle = box.center();
    switch (static_cast<TicStyle>(m_look.curTicStyle)) {
    case TicStyle::Ellipse:
        m_painter.drawEllipse(box);
        return;
    case TicStyle::Triangle:
        m_painter.drawPolygon(QPolygonF{box.topLeft(), box.topRight(), bottom});
        return;
    case TicStyle::Diamond:
        m_painter.drawPolygon(QPolygonF{top, {half, middle.y()}, bottom, {-half, middle.y()}});
        return;
    case TicStyle::Rectangle:
        break;
    }
    m_painter.drawRect(box);
}

void FacePainter::drawLabels()
{
    std::vector<TextOutline> labels;
    std::vector<double> angles;
    for (const Tic &tic : ticsOf(m_look)) {
        // A scale that goes round ends where it began.
        if (!angles.empty() && std::fabs(std::remainder(tic.angle - angles.front(), 360)) < SameAngle)
            continue;
        angles.push_back(tic.angle);
        labels.push_back(m_font.outline(common::shortestText(static_cast<float>(tic.value))));
    }
    const auto size = largestSize(statedSize(), [&](double tried) {
        m_labels = placed(labels, angles, tried);
        return !m_labels.empty();
    });
    m_painter.setBrush(rgb(m_look.curTicColour));
    for (std::size_t i = 0; i < m_labels.size(); ++i)
        labels[i].draw(m_painter, m_labels[i].center(), *size);
}

// Where they stand in this size; none where there is no room for all of them.
std::vector<QRectF> FacePainter::placed(const std::vector<TextOutline> &labels,
                                        const std::vector<double> &angles, double size) const
{
    const double reach = std::min(length(m_look.curTicInner), length(m_look.curTicOuter)) - Gap;
    std::vector<QRectF> boxes;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const auto middle = inside(reach, angles[i], labels[i].extent().size() * size);
        if (!middle || !touchesNone(boxOf(labels[i], *middle, size), boxes))
            return {};
        boxes.push_back(boxOf(labels[i], *middle, size));
    }
    return boxes;
}

// As large as it can be beside the labels; upon them where there is no room beside them.
void FacePainter::drawCaption()
{
    const TextOutline caption = m_font.outline(static_cast<const QString &>(m_look.curCaption).trimmed());
    const QPointF middle(length(m_look.curCaptionLeft), length(m_look.curCaptionTop));
    const auto fits = [&](double size) {
        const QSizeF half = caption.extent().size() * size / 2;
        return std::hypot(std::fabs(middle.x()) + half.width(), std::fabs(middle.y()) + half.height()) <=
               m_radius - Gap;
    };
    auto size = largestSize(statedSize(), [&](double tried) {
        return fits(tried) && touchesNone(boxOf(caption, middle, tried), m_labels);
    });
    if (!size)
        size = largestSize(statedSize(), fits);
    if (!size)
        return;
    m_painter.setBrush(rgb(m_look.curCaptionColour));
    caption.draw(m_painter, middle, *size);
}

} // namespace

FontStyle DialLook::style() const
{
    return {curFontBold != 0, curFontItalic != 0, curFontStrikethrough != 0, curFontUnderline != 0};
}

QImage dialFace(const DialLook &look, const OutlineFont &font, QSize size)
{
    if (size.isEmpty())
        return {};
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(rgb(look.curBkColour));
    FacePainter painter(look, font, picture);
    if (look.curAnnulars != 0)
        painter.drawAnnular();
    painter.drawTics();
    if (look.curTicLabelsOnOff != 0)
        painter.drawLabels();
    if (look.curCaptions != 0)
        painter.drawCaption();
    return picture;
}

QImage dialAlpha(const DialLook &look, const QImage &face)
{
    constexpr QRgb Opaque = qRgb(255, 255, 255), Clear = qRgb(0, 0, 0);
    const QRgb back = common::toPixel(look.curBkColour.packed());
    const double radius = radiusOf(face.size());
    QImage alpha(face.size(), QImage::Format_RGB32);
    for (int y = 0; y < face.height(); ++y) {
        const QRgb *pixels = pixelsOf(face, y);
        QRgb *row = pixelsOf(alpha, y);
        if (look.curTransparent != 0) {
            std::transform(pixels, pixels + face.width(), row,
                           [back](QRgb pixel) { return pixel == back ? Clear : Opaque; });
            continue;
        }
        // Pixels whose middle lies within the circle.
        const double fromMiddle = y + 0.5 - face.height() / 2.0;
        const double squared = radius * radius - fromMiddle * fromMiddle;
        const double chord = squared >= 0 ? std::sqrt(squared) : -1;
        const int first = static_cast<int>(std::ceil(face.width() / 2.0 - chord - 0.5));
        const int last = std::max(first, face.width() - first);
        std::fill(row, row + first, Clear);
        std::fill(row + first, row + last, Opaque);
        std::fill(row + last, row + face.width(), Clear);
    }
    return alpha;
}

} // namespace graphics
