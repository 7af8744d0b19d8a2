#include "shell/save_rules.h"

#include "graphics/font_name.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

namespace shell {

using namespace Qt::StringLiterals;

std::optional<QString> longNameQuestion(const QString &path)
{
    constexpr qsizetype LongestName = 8;
    if (QFileInfo(path).completeBaseName().size() <= LongestName)
        return std::nullopt;
    return u"File name should be maximum of 8 characters, Do you want to continue?"_s;
}

std::optional<QString> recorderNameQuestion(const QString &path,
                                            const std::function<bool(const QString &)> &isVolumeRoot)
{
    const QFileInfo file(path);
    const bool named = file.fileName().compare(RecorderFileName, Qt::CaseInsensitive) == 0;
    if (named && isVolumeRoot(QDir::cleanPath(file.absolutePath())))
        return std::nullopt;
    return u"Note that the file must be called %1 and saved to the root \n"
           "directory of a CF card to be recognised by the MORVEL\n\n"
           "Do you want to continue ?"_s.arg(RecorderFileName);
}

bool isVolumeRoot(const QString &folder)
{
    return QStorageInfo(folder).rootPath() == QFileInfo(folder).canonicalFilePath();
}

std::optional<QString> replacedFontsNote(const QStringList &files)
{
    if (files.isEmpty())
        return std::nullopt;
    QStringList names;
    for (const QString &file : files)
        names.append(QFileInfo(file).completeBaseName().simplified());
    return u"These fonts could not be made, the layout holds %1 in their place:\n\n%2"_s.arg(
        graphics::DefaultFace, names.join('\n'_L1));
}

} // namespace shell
