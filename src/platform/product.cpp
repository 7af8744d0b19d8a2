#include "platform/product.h"

namespace platform {

Personality personality() { return Personality::MORVEL_PERSONALITY; }

const QString ProductTitle = personality() == Personality::MORVEL
                                 ? QStringLiteral("MORVEL Configuration Tool")
                                 : QStringLiteral("hVault Configuration Tool");

} // namespace platform
