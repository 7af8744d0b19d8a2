#pragma once

#include "graphics/font_name.h"
#include "platform/progress.h"
#include "platform/prompts.h"

#include <QByteArray>

#include <optional>

namespace graphics {

// Where fonts come from and where their files go; both end in a separator.
struct FontFolders
{
    QString fontFiles;
    QString shippedFaces;
};

// The bytes of the two files of a font.
struct FontPair
{
    QByteArray standard;
    QByteArray extended;
};

inline const QString NoFontChosen = QStringLiteral("Please selct the font and font size");
inline const QString FontTooLarge =
    QStringLiteral("Font size too big to process\nReduce the size and try again");

// Whether a face and a size are chosen.
bool isComplete(const FontRequest &request);

// Renders a complete request. Nothing when a character is too large for the files. Throws RunTimeError when
// no face can be read.
std::optional<FontPair> renderFont(const FontRequest &request, const QString &shippedFaces,
                                   platform::Progress &progress);

// Writes both files of a font, each whole. Throws RunTimeError when one cannot be written.
void writeFont(const FontRequest &request, const FontPair &pair, const QString &folder);

// Renders and writes both files of a font. False, after a message and with nothing written, when the request
// is not complete or a character too large. Throws RunTimeError when no face can be read or a file not be
// written.
bool GenerateFont(const FontRequest &request, const FontFolders &folders, platform::Progress &progress,
                  platform::Prompts &prompts);

} // namespace graphics
