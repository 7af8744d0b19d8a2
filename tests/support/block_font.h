#pragma once

#include "graphics/font_file.h"
#include "graphics/font_generator.h"
#include "graphics/glyph_lists.h"
#include "support/test_world.h"

#include <QDir>

namespace test {

// A font of solid blocks, 8 pixels wide and 10 high: the pen moves 10 pixels with every character.
inline graphics::FontPair blockFont()
{
    const auto file = [](std::size_t count) {
        return *graphics::FontFile(
            {10, std::vector(count, graphics::Glyph{8, 10, 0, std::vector<quint8>(80, 255)})});
    };
    return {file(graphics::StandardGlyphs), file(graphics::ExtendedGlyphs)};
}

// Puts it where the font of this request is looked for.
inline void writeBlockFont(World &world, const graphics::FontRequest &request)
{
    QDir().mkpath(world.state.folders.FontFolder());
    graphics::writeFont(request, blockFont(), world.state.folders.FontFolder());
}

} // namespace test
