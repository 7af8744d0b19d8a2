#pragma once

#include <QObject>

namespace shell {

// Turns a termination signal into a close of the windows by the normal path, so that the workspace is saved.
void closeOnTermination(QObject *owner);

} // namespace shell
