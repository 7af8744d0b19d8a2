#include "graphics/outline_font.h"

#include "graphics/face_source.h"
#include "graphics/made_up_style.h"

#include <QPainter>

namespace graphics {

namespace {

constexpr double UnitsPerEm = 1000; // the size at which outlines are taken; nothing is rounded there

constexpr double UsualUnderline = 0.1; // share of the size, for faces that do not say: middle of the bar

QRawFont opened(const QByteArray &file)
{
    return file.isEmpty() ? QRawFont() : QRawFont(file, UnitsPerEm, QFont::PreferNoHinting);
}

QRectF bar(double middle, double thickness, double width)
{
    return {0, middle - thickness / 2, width, thickness};
}

} // namespace

QRectF TextOutline::extent() const
{
    const double margin = strokes / 2;
    return path.boundingRect().adjusted(-margin, -margin, margin, margin);
}

void TextOutline::draw(QPainter &painter, QPointF middle, double size) const
{
    painter.save();
    painter.translate(middle);
    painter.scale(size, size);
    painter.translate(-path.boundingRect().center());
    painter.setPen(strokes > 0 ? QPen(painter.brush(), strokes) : QPen(Qt::NoPen));
    painter.drawPath(path);
    painter.restore();
}

OutlineFont::OutlineFont(const QString &face, const FontStyle &style, const QString &shippedFaces)
    : m_style(style), m_standIn(opened(shippedFace(shippedFaces, style)))
{
    if (!m_standIn.isValid())
        m_standIn = opened(installedFace(ShippedFace, style));
    if (!isShippedFace(face))
        m_face = opened(installedFace(face, style));
    if (!m_face.isValid())
        m_face = m_standIn;
}

const QRawFont &OutlineFont::faceOf(char32_t character) const
{
    return !m_face.supportsCharacter(character) && m_standIn.isValid() ? m_standIn : m_face;
}

const OutlineFont::Glyph &OutlineFont::glyphOf(char32_t character) const
{
    const auto known = m_glyphs.constFind(character);
    if (known != m_glyphs.constEnd())
        return *known;
    const QRawFont &face = faceOf(character);
    const QList<quint32> glyphs = face.glyphIndexesForString(QString::fromUcs4(&character, 1));
    Glyph glyph;
    if (!glyphs.isEmpty())
        glyph = {face.pathForGlyph(glyphs.front()),
                 face.advancesForGlyphIndexes({glyphs.front()}, QRawFont::UseDesignMetrics).front().x()};
    return *m_glyphs.insert(character, glyph);
}

TextOutline OutlineFont::outline(const QString &text) const
{
    if (!m_face.isValid())
        return {};
    QPainterPath path;
    double pen = 0;
    for (const char32_t character : text.toUcs4()) {
        const Glyph &glyph = glyphOf(character);
        path.addPath(glyph.path.translated(pen, 0));
        pen += glyph.advance;
    }
    const double thickness =
        m_face.lineThickness() > 0 ? m_face.lineThickness() : UsualThickness * UnitsPerEm;
    const double below =
        m_face.lineThickness() > 0 ? m_face.underlinePosition() + thickness / 2 : UsualUnderline * UnitsPerEm;
    if (m_style.underline)
        path.addRect(bar(below, thickness, pen));
    if (m_style.strikethrough)
        path.addRect(bar(-UsualStrikethrough * UnitsPerEm, thickness, pen));
    path.setFillRule(Qt::WindingFill);
    const bool slanted = m_style.italic && m_face.style() == QFont::StyleNormal;
    const bool widened = m_style.bold && m_face.weight() < QFont::DemiBold;
    QTransform toSizeOfOne = QTransform::fromScale(1 / UnitsPerEm, 1 / UnitsPerEm);
    if (slanted)
        toSizeOfOne.shear(-Slant, 0);
    return {toSizeOfOne.map(path), widened ? 1.0 / StrokeDivisor : 0};
}

} // namespace graphics
