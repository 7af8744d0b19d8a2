#include "controls/picture_copies.h"

#include "common/code_page.h"
#include "graphics/picture_loader.h"
#include "platform/guards.h"

#include <QDir>
#include <QRegularExpression>

namespace controls {

using namespace Qt::StringLiterals;

namespace {

constexpr int LongestName = 150; // the library keeps 199 characters, a number may be added

bool isTaken(const QString &path) { return QFileInfo::exists(path) || QFileInfo(path).isSymLink(); }

// Whether the name is free for these bytes.
bool mayHold(const QString &path, const QByteArray &bytes)
{
    if (!isTaken(path))
        return true;
    QByteArray held;
    return platform::skipFailures([&] { held = platform::readFile(path); }) && held == bytes;
}

// A name as the library can keep it: no path, not hidden, of the code page's characters.
QString plainName(const QString &wanted)
{
    static const QRegularExpression Unfit(u"^\\.+|[\\x00-\\x1F/\\\\:?]"_s);
    return common::fromCodePage(common::toCodePage(wanted)).right(LongestName).replace(Unfit, u"_"_s);
}

// The plain name, with the first number from 2 on under which it serves.
template <typename Test>
QString numbered(const QString &wanted, Test serves)
{
    const QString plain = plainName(wanted);
    const QFileInfo parts(plain);
    const QString ending = parts.suffix().isEmpty() ? QString() : u'.' + parts.suffix();
    QString name = plain;
    for (int number = 2; !serves(name); ++number)
        name = u"%1 %2%3"_s.arg(parts.completeBaseName(), QString::number(number), ending);
    return name;
}

} // namespace

QString copyName(const QString &folder, const QString &wanted, const QByteArray &bytes)
{
    return numbered(wanted, [&](const QString &name) { return mayHold(folder + name, bytes); });
}

QString ownCopyName(const QString &folder, const QString &wanted, const QString &named)
{
    return numbered(wanted, [&](const QString &name) { return name != named && !isTaken(folder + name); });
}

void keepCopy(const QString &folder, const QString &name, const QByteArray &bytes, platform::Flush flush)
{
    QDir().mkpath(folder);
    if (!QFileInfo::exists(folder + name))
        platform::replaceFile(folder + name, bytes, flush);
}

QImage keptPicture(const QString &folder, const QString &name)
{
    return graphics::loadPicture(platform::nameWithin(folder, name)).picture;
}

QString loadedName(char kind, const QTime &time, int number)
{
    return u"%1%2%3.bmp"_s.arg(QLatin1Char(kind)).arg(time.toString(u"hhmmss"_s)).arg(number);
}

void removeUnusedCopies(const platform::Folders &folders)
{
    static const QRegularExpression Loaded(u"^[SA]\\d{7,}( \\d+)*\\.bmp$"_s);
    QByteArray library;
    const QString libraryFile = folders.ControlConfigFile();
    if (QFileInfo::exists(libraryFile) &&
        !platform::skipFailures([&] { library = platform::readFile(libraryFile); }))
        return;
    QDir copies(folders.pictureFolder());
    for (const QString &name : copies.entryList(QDir::Files)) {
        if (Loaded.match(name).hasMatch() && !library.contains(name.toLatin1()))
            copies.remove(name);
    }
}

} // namespace controls
