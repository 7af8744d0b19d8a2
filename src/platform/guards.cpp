#include "platform/guards.h"

namespace platform {

void reportFailure(Prompts &prompts, const QString &reason)
{
    prompts.message(Icon::Critical, ProductTitle,
                    QStringLiteral("The command could not be completed.\n%1").arg(reason));
}

void reportStanding(Prompts &prompts, const QString &path, Standing standing)
{
    if (standing == Standing::NotConfirmed) {
        prompts.message(
            Icon::Warning, ProductTitle,
            QStringLiteral("%1\nwas saved, but not confirmed by the device. Keep a copy in another "
                           "place as well.")
                .arg(path));
    }
}

} // namespace platform
