#include "shell/help.h"

namespace shell {

std::optional<QUrl> onlineHelp()
{
    const QString host = QStringLiteral(MORVEL_HELP_HOST);
    if (host.isEmpty())
        return std::nullopt;
    return QUrl(QStringLiteral("https://%1/wiki/index.php/VideoSoftware/MORVELConfigurationTool").arg(host));
}

} // namespace shell
