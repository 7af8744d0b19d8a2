#include "graphics/font_generator.h"

#include "graphics/face_rasteriser.h"
#include "graphics/font_file.h"
#include "graphics/glyph_lists.h"
#include "platform/file_replace.h"

#include <QDir>

namespace graphics {

namespace {

// The glyphs of one list as they are drawn, not yet aligned. Nothing when one is too large.
std::optional<RasterFont> renderList(FaceRasteriser &face, std::span<const std::uint8_t> characters,
                                     platform::Progress &progress, const QString &status)
{
    platform::ProgressScope scope(progress, status);
    RasterFont font;
    InputText surface;
    for (const std::uint8_t character : characters) {
        if (!face.draw(character, surface))
            return std::nullopt;
        Glyph glyph = DrawAAFont(surface, BoundaryScan(surface));
        if (glyph.hasInk() && !fitsFontFile(glyph))
            return std::nullopt;
        font.glyphs.push_back(std::move(glyph));
        scope.advance(0, 100, static_cast<qsizetype>(font.glyphs.size()),
                      static_cast<qsizetype>(characters.size()));
    }
    return font;
}

} // namespace

bool isComplete(const FontRequest &request) { return !request.face.isEmpty() && request.size > 0; }

std::optional<FontPair> renderFont(const FontRequest &request, const QString &shippedFaces,
                                   platform::Progress &progress)
{
    FaceRasteriser face(request, shippedFaces);
    auto standard =
        renderList(face, standardList(), progress, QStringLiteral("Generating standard font file..."));
    if (!standard)
        return std::nullopt;
    auto extended =
        renderList(face, extendedList(), progress, QStringLiteral("Generating extended font file..."));
    if (!extended)
        return std::nullopt;
    alignToLine(*standard, *extended);
    const auto standardFile = FontFile(*standard);
    const auto extendedFile = FontFile(*extended);
    if (!standardFile || !extendedFile)
        return std::nullopt;
    return FontPair{*standardFile, *extendedFile};
}

bool GenerateFont(const FontRequest &request, const FontFolders &folders, platform::Progress &progress,
                  platform::Prompts &prompts)
{
    if (!isComplete(request)) {
        prompts.message(platform::Icon::Information, platform::ProductTitle, NoFontChosen);
        return false;
    }
    const auto pair = renderFont(request, folders.shippedFaces, progress);
    if (!pair) {
        prompts.message(platform::Icon::Information, platform::ProductTitle, FontTooLarge);
        return false;
    }
    writeFont(request, *pair, folders.fontFiles);
    return true;
}

void writeFont(const FontRequest &request, const FontPair &pair, const QString &folder)
{
    QDir().mkpath(folder);
    // Not flushed: a file that does not outlive a crash is made again.
    platform::replaceFile(folder + fontFileName(request), pair.standard, platform::Flush::None);
    platform::replaceFile(folder + extendedFontFileName(request), pair.extended, platform::Flush::None);
}

} // namespace graphics
