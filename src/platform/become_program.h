#pragma once

#include <QStringList>

namespace platform {

// Runs the program of that path in the place of this one. Comes back only when that fails, with the reason.
QString becomeProgram(const QString &path, const QStringList &arguments);

} // namespace platform
