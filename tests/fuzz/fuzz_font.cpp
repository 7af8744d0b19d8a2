#include "fuzz/targets.h"
#include "graphics/font_file.h"
#include "graphics/glyph_lists.h"
#include "graphics/modDrawFont.h"

#include <QtEndian>

#include <algorithm>

namespace fuzz {

namespace {

using graphics::Glyph;
using graphics::TextFont;

constexpr int FixedPart = 9;
constexpr int PartOfGlyph = 7;

// Lengths that add up, so that most inputs reach the glyphs.
QByteArray withTrueLengths(QByteArrayView bytes, int count)
{
    QByteArray file = bytes.toByteArray();
    const qsizetype table = FixedPart + PartOfGlyph * count;
    qsizetype rows = 0;
    for (qsizetype i = FixedPart + 4 * count; i + 2 < std::min(table, file.size()); i += 3)
        rows += static_cast<unsigned char>(file[i + 1]);
    if (table + rows > file.size())
        return file;
    qToLittleEndian(static_cast<qint32>(file.size() - table - rows), file.data());
    qToLittleEndian(static_cast<qint32>(rows), file.data() + 4);
    return file;
}

// What was read can be drawn; if it can be written, it reads back the same.
bool holds(QByteArrayView bytes, int count)
{
    const auto font = graphics::readFontFile(bytes, count);
    if (!font)
        return true;
    const auto file = graphics::FontFile(*font);
    return (!file || graphics::readFontFile(*file, count) == font) &&
           std::all_of(font->glyphs.begin(), font->glyphs.end(), [](const Glyph &glyph) {
               return glyph.coverage.size() == static_cast<std::size_t>(glyph.width * glyph.height);
           });
}

bool draws(QByteArrayView standard, QByteArrayView extended)
{
    const auto font = TextFont::fromFiles(standard, extended);
    if (!font)
        return true;
    QImage surface(40, 30, QImage::Format_RGB32);
    surface.fill(Qt::white);
    const QString text = "(A! j\u00e9";
    return drawText(*font, text, {{-3, -2}, 0, 200}, surface).width == font->penBehind(text, -3);
}

QByteArray emptyFont(int count) { return QByteArray(FixedPart + PartOfGlyph * count, '\0'); }

} // namespace

bool font(QByteArrayView bytes)
{
    using namespace graphics;
    const int kind = bytes.isEmpty() ? 0 : static_cast<unsigned char>(bytes[0]) % 32;
    const int few = kind % 8;
    if (kind < 16) // a file of a few glyphs, which is found sooner than a real one
        return holds(kind < 8 ? bytes.toByteArray() : withTrueLengths(bytes, few), few);
    const bool isStandard = kind < 24;
    const int count = isStandard ? StandardGlyphs : ExtendedGlyphs;
    const QByteArray file = withTrueLengths(bytes, count);
    return holds(file, count) &&
           (isStandard ? draws(file, emptyFont(ExtendedGlyphs)) : draws(emptyFont(StandardGlyphs), file));
}

} // namespace fuzz
