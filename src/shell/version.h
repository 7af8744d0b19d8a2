#pragma once

#include <QString>

namespace shell {

// Major, minor and revision with "." between them.
inline QString programVersion() { return QStringLiteral(MORVEL_VERSION); }

} // namespace shell
