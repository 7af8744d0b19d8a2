#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace shell {

// The questions that a Save asks about the chosen file, in their order; none when the name needs no question.

// A base name of more than 8 characters.
std::optional<QString> longNameQuestion(const QString &path);

// Anything but DEFAULT.VGL (in any case) in the root of a volume. `rootOf` answers the root folder of the
// volume that holds a folder.
std::optional<QString> recorderNameQuestion(const QString &path,
                                            const std::function<QString(const QString &folder)> &rootOf);

// The root of the mounted volume that holds `folder`.
QString volumeRoot(const QString &folder);

} // namespace shell
