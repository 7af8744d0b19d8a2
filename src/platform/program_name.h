#pragma once

#include <QLatin1String>

namespace platform {

// The name of the executable. Its lock and its cache folder go by it.
inline constexpr QLatin1String ProgramName{"morvel-config"};
// The name under which people and desktops start it.
inline constexpr QLatin1String LaunchName{"morvel"};

} // namespace platform
