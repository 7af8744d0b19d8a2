#pragma once

#include <QImage>
#include <QPainter>

namespace controls {

// A part of the canvas while controls are drawn into it, one upon the other, as the recorder composes them.
struct Composition
{
    QImage picture; // QImage::Format_RGB32
    QPoint corner;  // of the picture on the canvas, pixels

    QRect area() const { return {corner, picture.size()}; }
};

// Draws into a composition; its coordinates are canvas pixels.
class CompositionPainter final : public QPainter
{
public:
    explicit CompositionPainter(Composition &onto) : QPainter(&onto.picture) { translate(-onto.corner); }
};

} // namespace controls
