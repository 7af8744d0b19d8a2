#pragma once

#include <QImage>
#include <QPainter>

namespace controls {

// As the recorder draws, or as the canvas shows a control to who works on it.
enum class Drawing { Recorded, Designed };

// A part of the canvas while controls are drawn into it, one upon the other.
struct Composition
{
    QImage picture; // QImage::Format_RGB32
    QPoint corner;  // of the picture on the canvas, pixels
    Drawing drawing = Drawing::Recorded;

    QRect area() const { return {corner, picture.size()}; }
};

// Draws into a composition; its coordinates are canvas pixels.
class CompositionPainter final : public QPainter
{
public:
    explicit CompositionPainter(Composition &onto) : QPainter(&onto.picture) { translate(-onto.corner); }
};

} // namespace controls
