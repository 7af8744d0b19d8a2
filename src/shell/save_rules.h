#pragma once

#include <QStringList>

#include <functional>
#include <optional>

namespace shell {

// The questions that a Save asks about the chosen file, in their order; none when the name needs no question.

// A base name of more than 8 characters.
std::optional<QString> longNameQuestion(const QString &path);

// The one name that the recorder looks for, in any case.
inline const QString RecorderFileName = QStringLiteral("DEFAULT.VGL");

// Anything but that name in the root of a volume.
std::optional<QString> recorderNameQuestion(const QString &path,
                                            const std::function<bool(const QString &folder)> &isVolumeRoot);

// Whether `folder`, perhaps by way of a link, is the root of a mounted volume.
bool isVolumeRoot(const QString &folder);

// What a Save says afterwards about fonts (names of their files) that could not be made; nothing for none.
std::optional<QString> replacedFontsNote(const QStringList &files);

} // namespace shell
