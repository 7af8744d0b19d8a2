#pragma once

namespace controls {
class OverlayControl;
}

namespace surface {

class Canvas;

// Lets accessibility tools see every control of every canvas as a child of it, with family, variable and
// place.
void makeCanvasAccessible();

// Tells them that the keys act on this control now.
void tellFocus(Canvas &canvas, const controls::OverlayControl &control);

} // namespace surface
