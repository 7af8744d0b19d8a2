#pragma once

#include <QObject>

namespace shell {

// Turns a termination signal and the end of the desktop session into a close of the windows by the normal
// path, so that the workspace is saved. `sessionEnds` is set before that.
void closeOnTermination(QObject *owner, bool &sessionEnds);

} // namespace shell
