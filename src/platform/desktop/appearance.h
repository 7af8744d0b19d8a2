#pragma once

class QApplication;
class QString;

namespace platform {

// The tool's look on every desktop: Fusion, its own palette and face, and libre faces in the place of those
// that are not installed.
enum class Theme { Light, Dark };
void applyAppearance(QApplication &application, Theme theme = Theme::Light);

// Makes the faces that come with the program known to all windows, installed or not. Faces that are missing
// in the folder are passed over.
void registerShippedFaces(const QString &folder);

} // namespace platform
