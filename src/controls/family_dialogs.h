#pragma once

namespace controls {

class OverlayControl;

// Shows the property dialog of the control's family until it is closed.
void showPropertyDialog(OverlayControl &control);

} // namespace controls
