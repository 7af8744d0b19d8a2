#pragma once

#include "platform/faces.h"

#include <QString>

namespace graphics {

struct FontStyle
{
    bool bold = false;
    bool italic = false;
    bool strikethrough = false;
    bool underline = false;

    bool operator==(const FontStyle &) const = default;
};

// A font as a control asks for it.
struct FontRequest
{
    QString face;
    int size = 0; // points, from 1; 0 where none is chosen or a cut file name has lost it
    FontStyle style;

    bool operator==(const FontRequest &) const = default;
};

using platform::DefaultFace;

// A face as files know it: without the foundry ("Name [Foundry]"), and the default face in place of one that
// is empty or would lead out of the font folder.
QString storedFace(const QString &face);

// The name of the standard font file: "Arial B 12.qlg", with two blanks where there is no style.
QString fontFileName(const FontRequest &request);
// The name of its partner with the extended glyphs.
QString extendedFontFileName(const FontRequest &request);

// The request behind a file name, as a record of a layout stores it: cut at a NUL, or at the width of its
// field and so perhaps without its end. The face is never empty.
FontRequest splitFontFileName(const QString &name);

} // namespace graphics
