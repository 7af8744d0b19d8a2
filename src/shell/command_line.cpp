#include "shell/command_line.h"

#include <QDir>
#include <QFileInfo>

namespace shell {

namespace {

QString unquoted(QString text) { return text.remove(QLatin1Char('"')).trimmed(); }

bool isBareSwitch(const QString &argument)
{
    return argument.compare(QLatin1String("/F"), Qt::CaseInsensitive) == 0 ||
           argument.compare(QLatin1String("/T"), Qt::CaseInsensitive) == 0;
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
    if (QDir::separator() != QLatin1Char('/'))
        return argument;
    QString turned = argument;
    const qsizetype first = turned.indexOf(QLatin1Char('/'));
    for (qsizetype i = first + 1; first >= 0 && i < turned.size(); ++i) {
        if (turned[i] == QLatin1Char('/'))
            turned[i] = QLatin1Char('\\');
    }
    return turned;
}

QString platformPath(QString path)
{
    return QDir::separator() == QLatin1Char('/') ? path.replace(QLatin1Char('\\'), QLatin1Char('/')) : path;
}

std::optional<recorder::VideoStandard> standardOf(const QString &word)
{
    if (word.compare(QLatin1String("NTSC"), Qt::CaseInsensitive) == 0)
        return recorder::VideoStandard::Ntsc;
    if (word.compare(QLatin1String("PAL"), Qt::CaseInsensitive) == 0)
        return recorder::VideoStandard::Pal;
    return std::nullopt;
}

} // namespace

QStringList argumentsForProgram(const QStringList &arguments)
{
    QStringList passed = bareSwitchesJoined(arguments);
    for (QString &argument : passed) {
        if (const QFileInfo file(argument); file.isFile())
            argument = QStringLiteral("/F") + file.absoluteFilePath();
    }
    passed.prepend(LaunchedMark);
    return passed;
}

QString rawCommandLine(const QStringList &arguments)
{
    QStringList joined = bareSwitchesJoined(arguments);
    for (QString &argument : joined)
        argument = slashesTurned(argument);
    return joined.join(QLatin1Char(' '));
}

CommandLine parseCommandLine(const QString &rawLine, const std::function<bool(const QString &)> &fileExists)
{
    CommandLine result;
    const QStringList parts = rawLine.split(QLatin1Char('/'));
    for (const QString &part : parts.sliced(1)) {
        const QString value = unquoted(part.mid(1));
        const QChar letter = part.isEmpty() ? QChar() : part.front().toUpper();
        if (letter == QLatin1Char('F')) {
            const auto isLayout = [&](const QString &path) {
                return path.endsWith(QLatin1String("VGL"), Qt::CaseInsensitive) && fileExists(path);
            };
            const QString quoted = platformPath(part.mid(1).trimmed()); // as part of the file's name
            const QString path = platformPath(value);
            if (isLayout(quoted))
                result.layoutToOpen = quoted;
            else if (isLayout(path))
                result.layoutToOpen = path;
        } else if (letter == QLatin1Char('T')) {
            if (const auto standard = standardOf(value))
                result.videoOverride = standard;
        }
    }
    return result;
}

} // namespace shell
