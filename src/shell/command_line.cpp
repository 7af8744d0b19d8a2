#include "shell/command_line.h"

#include "platform/program_name.h"

#include <QDir>
#include <QFileInfo>

namespace shell {

using namespace Qt::StringLiterals;

namespace {

QString unquoted(QString text) { return text.remove('"'_L1).trimmed(); }

bool isBareSwitch(const QString &argument)
{
    return argument.compare("/F"_L1, Qt::CaseInsensitive) == 0 ||
           argument.compare("/T"_L1, Qt::CaseInsensitive) == 0;
}

QStringList bareSwitchesJoined(const QStringList &arguments)
{
    QStringList joined;
    for (const QString &argument : arguments) {
        if (!joined.isEmpty() && isBareSwitch(joined.last()))
            joined.last().append(argument);
        else
            joined.append(argument);
    }
    return joined;
}

QString slashesTurned(const QString &argument)
{
    if (QDir::separator() != '/'_L1)
        return argument;
    QString turned = argument;
    const qsizetype first = turned.indexOf('/'_L1);
    for (qsizetype i = first + 1; first >= 0 && i < turned.size(); ++i) {
        if (turned[i] == '/'_L1)
            turned[i] = '\\'_L1;
    }
    return turned;
}

QString platformPath(QString path)
{
    return QDir::separator() == '/'_L1 ? path.replace('\\'_L1, '/'_L1) : path;
}

std::optional<recorder::VideoStandard> standardOf(const QString &word)
{
    if (word.compare("NTSC"_L1, Qt::CaseInsensitive) == 0)
        return recorder::VideoStandard::Ntsc;
    if (word.compare("PAL"_L1, Qt::CaseInsensitive) == 0)
        return recorder::VideoStandard::Pal;
    return std::nullopt;
}

} // namespace

bool isLaunched(const QString &name) { return QFileInfo(name).completeBaseName() == platform::LaunchName; }

QStringList launchedArguments(const QStringList &arguments)
{
    QStringList passed = bareSwitchesJoined(arguments);
    for (QString &argument : passed) {
        if (const QFileInfo file(argument); file.isFile())
            argument = u"/F"_s + file.absoluteFilePath();
    }
    passed.prepend(LaunchedMark);
    return passed;
}

QString rawCommandLine(const QStringList &arguments)
{
    QStringList joined = bareSwitchesJoined(arguments);
    for (QString &argument : joined)
        argument = slashesTurned(argument);
    return joined.join(' '_L1);
}

CommandLine parseCommandLine(const QString &rawLine, const std::function<bool(const QString &)> &fileExists)
{
    CommandLine result;
    const QStringList parts = rawLine.split('/'_L1);
    for (const QString &part : parts.sliced(1)) {
        const QString value = unquoted(part.mid(1));
        const QChar letter = part.isEmpty() ? QChar() : part.front().toUpper();
        if (letter == 'F'_L1) {
            const auto isLayout = [&](const QString &path) {
                return path.endsWith("VGL"_L1, Qt::CaseInsensitive) && fileExists(path);
            };
            const QString quoted = platformPath(part.mid(1).trimmed()); // as part of the file's name
            const QString path = platformPath(value);
            if (isLayout(quoted))
                result.layoutToOpen = quoted;
            else if (isLayout(path))
                result.layoutToOpen = path;
        } else if (letter == 'T'_L1) {
            if (const auto standard = standardOf(value))
                result.videoOverride = standard;
        }
    }
    return result;
}

} // namespace shell
