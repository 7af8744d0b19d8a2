#pragma once

#include <QLatin1String>

namespace platform {

// The name of the executable. Its lock, its cache folder and whoever starts it go by it.
inline constexpr QLatin1String ProgramName{"morvel-config"};

} // namespace platform
