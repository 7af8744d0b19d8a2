#include "platform/guards.h"

namespace platform {

void reportFailure(Prompts &prompts, const QString &reason)
{
    prompts.message(Icon::Critical, ProductTitle,
                    QStringLiteral("The command could not be completed.\n%1").arg(reason));
}

} // namespace platform
