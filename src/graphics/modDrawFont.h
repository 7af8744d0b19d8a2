#pragma once

#include "graphics/text_font.h"

#include <QImage>
#include <QPoint>
#include <QString>

namespace graphics {

// What is to be drawn, and how.
struct TextLook
{
    QPoint position;    // pixels: where the pen starts, and the top of the line
    quint32 colour = 0; // 0x00BBGGRR
    quint8 opacity = 255;
};

// Pixels: where the pen stands at the end (the start included), and the line height.
struct TextExtent
{
    int width = 0;
    int height = 0;

    bool operator==(const TextExtent &) const = default;
};

// Draws a text as the recorder does: every pixel of a glyph is mixed with the one below by its coverage times
// the opacity, each component rounded with halves to even. What lies outside the surface is cut off. The
// surface has 32 bits a pixel; one that has not is converted. Its own alpha is left alone.
TextExtent drawText(const TextFont &font, const QString &text, const TextLook &look, QImage &surface);

} // namespace graphics
