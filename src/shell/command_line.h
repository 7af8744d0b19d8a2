#pragma once

#include "recorder/recorder_settings.h"

#include <QStringList>

#include <functional>
#include <optional>

namespace shell {

struct CommandLine
{
    QString layoutToOpen;                                 // empty for none
    std::optional<recorder::VideoStandard> videoOverride; // for this run
};

// The argument which says that somebody launched the program; it holds no slash and so means nothing else.
inline const QString LaunchedMark = QStringLiteral("--launched");

// Whether the program was started by this name as a person or a desktop starts it.
bool isLaunched(const QString &name);

// The arguments of a launched program: the mark, and a plain file, as a file manager names it, as /F and its
// path.
QStringList launchedArguments(const QStringList &arguments);

// The raw line of the arguments after the program's name. Where "/" separates folders, the slashes after
// the first one of an argument become "\", so that the parser, which splits at "/", sees one path. An
// argument that follows a bare /F or /T belongs to it.
QString rawCommandLine(const QStringList &arguments);

// /F and a path that ends in "VGL" and exists (the last one wins), /T and NTSC or PAL; anything else is
// ignored.
CommandLine parseCommandLine(const QString &rawLine, const std::function<bool(const QString &)> &fileExists);

} // namespace shell
