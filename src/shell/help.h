#pragma once

#include <QUrl>

#include <optional>

namespace shell {

// The page of the on-line help; nothing where the build names no server.
std::optional<QUrl> onlineHelp();

} // namespace shell
