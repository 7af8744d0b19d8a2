#pragma once

class QApplication;

namespace platform {

// The tool's look on every desktop: Fusion, its own palette and face, and libre faces in the place of those
// that are not installed.
enum class Theme { Light, Dark };
void applyAppearance(QApplication &application, Theme theme = Theme::Light);

} // namespace platform
