#pragma once

#include "graphics/font_name.h"

#include <QHash>
#include <QPainterPath>
#include <QRawFont>

class QPainter;

namespace graphics {

// A text as outlines, at a size of one: its base line is at 0, y runs down.
struct TextOutline
{
    QPainterPath path;
    double strokes = 0; // width of the pen that makes it bold; 0 where the face is

    QRectF extent() const;
    // Draws it in the painter's brush, in this size and with the middle of its extent at `middle`.
    void draw(QPainter &painter, QPointF middle, double size) const;
};

// The outlines of a face, taken from its font file. They are not fitted to pixels and no setting of the
// desktop has a say, so the same face gives the same drawing on every machine.
class OutlineFont
{
public:
    // The installed face, or the shipped one from the folder `shippedFaces` in its place and for characters
    // that it lacks. Where neither can be read, texts have no outlines.
    OutlineFont(const QString &face, const FontStyle &style, const QString &shippedFaces);

    // What the face lacks of the style is made up.
    TextOutline outline(const QString &text) const;

private:
    // At a thousand units to the em.
    struct Glyph
    {
        QPainterPath path;
        double advance = 0;
    };
    const Glyph &glyphOf(char32_t character) const;
    const QRawFont &faceOf(char32_t character) const;

    FontStyle m_style;
    mutable QHash<char32_t, Glyph> m_glyphs; // those that were drawn
    QRawFont m_face;
    QRawFont m_standIn;
};

} // namespace graphics
