#include "fuzz/targets.h"
#include "graphics/font_file.h"
#include "graphics/font_name.h"
#include "graphics/glyph_lists.h"
#include "graphics/modDrawFont.h"

#include <algorithm>

namespace fuzz {

namespace {

using graphics::Glyph;
using graphics::RasterFont;
using graphics::TextFont;

constexpr int FixedPart = 9;
constexpr int PartOfGlyph = 7;

void putNumber(QByteArray &file, int place, qsizetype value)
{
    for (int i = 0; i < 4; ++i)
        file[place + i] = static_cast<char>(value >> (8 * i));
}

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
    putNumber(file, 0, file.size() - table - rows);
    putNumber(file, 4, rows);
    return file;
}

// What was read can be drawn; if it can be written, it reads back the same.
bool settles(const RasterFont &font, int count)
{
    const bool complete = std::all_of(font.glyphs.begin(), font.glyphs.end(), [](const Glyph &glyph) {
        return glyph.coverage.size() == static_cast<std::size_t>(glyph.width * glyph.height);
    });
    const auto file = graphics::FontFile(font);
    return complete && (!file || graphics::readFontFile(*file, count) == font);
}

bool holds(QByteArrayView bytes, int count)
{
    const auto font = graphics::readFontFile(bytes, count);
    return !font || settles(*font, count);
}

bool draws(QByteArrayView standard, QByteArrayView extended)
{
    const auto font = TextFont::fromFiles(standard, extended);
    if (!font)
        return true;
    QImage surface(40, 30, QImage::Format_RGB32);
    surface.fill(Qt::white);
    graphics::TextLook look;
    look.position = {-3, -2};
    look.opacity = 200;
    const QString text = "(A! j\u00e9";
    return drawText(*font, text, look, surface).width == font->penBehind(text, -3);
}

QByteArray emptyFont(int count) { return QByteArray(FixedPart + PartOfGlyph * count, '\0'); }

bool namesStayInside(const QString &name)
{
    const QString again = graphics::fontFileName(graphics::splitFontFileName(name));
    return !again.contains('/') && !again.contains('\\') && !again.startsWith('.');
}

} // namespace

bool font(QByteArrayView bytes)
{
    const int kind = bytes.isEmpty() ? 0 : static_cast<unsigned char>(bytes[0]) % 32;
    const QString name = QString::fromLatin1(bytes.first(std::min<qsizetype>(bytes.size(), 40)));
    if (kind >= 24) { // a real file; below that, one of a few glyphs, which is found sooner
        const QByteArray file = withTrueLengths(bytes, graphics::ExtendedGlyphs);
        return holds(file, graphics::ExtendedGlyphs) && draws(emptyFont(graphics::StandardGlyphs), file);
    }
    if (kind >= 16) {
        const QByteArray file = withTrueLengths(bytes, graphics::StandardGlyphs);
        return holds(file, graphics::StandardGlyphs) && draws(file, emptyFont(graphics::ExtendedGlyphs));
    }
    const int few = kind % 8;
    return holds(kind < 8 ? bytes.toByteArray() : withTrueLengths(bytes, few), few) && namesStayInside(name);
}

} // namespace fuzz
