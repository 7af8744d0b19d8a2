#pragma once

#include "controls/overlay_control.h"

#include <QDateTime>

#include <functional>

namespace surface {

using IconFilling = std::function<void(controls::OverlayControl &)>; // gives a control its properties

// The picture of a control of this family that stands nowhere.
QImage libraryIcon(const controls::Family &family, controls::ControlHost &host, const IconFilling &fill);

// A new control, with something to show.
void fillStandard(controls::OverlayControl &control);

// Gives a fresh control a stored configuration where it stands; its initial properties where that cannot be
// one.
void fillConfigured(controls::OverlayControl &control, const QStringList &texts);

// The name of a thumbnail that is made now, or of the next second whose name is free in this folder.
QString thumbnailName(const QString &folder, QDateTime now);

} // namespace surface
