#pragma once

#include <QString>

namespace platform {

// Under which name the program is sold. The build says so; nothing changes it at run time.
enum class Personality { MORVEL, hVault };
Personality personality();

// The program's name in captions, and in the title of every box that has no title of its own.
extern const QString ProductTitle;

} // namespace platform
