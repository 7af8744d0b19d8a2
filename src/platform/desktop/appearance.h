#pragma once

class QApplication;
class QString;

namespace platform {

enum class Theme { Light, Dark };

// What the desktop's own palette is. Ask before applyAppearance replaces it.
Theme desktopTheme();

// The tool's look on every desktop: Fusion, its own palette and face, and libre faces in the place of those
// that are not installed.
void applyAppearance(QApplication &application, Theme theme = desktopTheme());

// Makes the faces that come with the program known to all windows, installed or not. Faces that are missing
// in the folder are passed over.
void registerShippedFaces(const QString &folder);

} // namespace platform
