#pragma once

#include <functional>

class QWidget;

namespace platform {

// Calls `task` from the event loop once the window has been painted for the first time.
void afterFirstPaint(QWidget &window, const std::function<void()> &task);

} // namespace platform
