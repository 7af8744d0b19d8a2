#include "platform/become_program.h"

#include <QFile>
#include <QProcess>

#include <cstdlib>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <cstring>
#include <unistd.h>
#include <vector>
#endif

namespace platform {

#ifdef Q_OS_UNIX
QString becomeProgram(const QString &path, const QStringList &arguments)
{
    std::vector<QByteArray> words{QFile::encodeName(path)};
    for (const QString &argument : arguments)
        words.push_back(QFile::encodeName(argument));
    std::vector<char *> line;
    line.reserve(words.size() + 1);
    for (QByteArray &word : words)
        line.push_back(word.data());
    line.push_back(nullptr);
    ::execv(line.front(), line.data());
    return QString::fromLocal8Bit(std::strerror(errno));
}
#else
QString becomeProgram(const QString &path, const QStringList &arguments)
{
    if (QProcess::startDetached(path, arguments))
        std::exit(EXIT_SUCCESS);
    return QStringLiteral("The system could not start it.");
}
#endif

} // namespace platform
