// The pair of font files of a new face, beside what the font engine alone takes to rasterise the same
// characters at four times the size (limit: four times as long), and a text from a cached font (limit: 50
// microseconds for 30 characters at 24 points).

#include "graphics/font_store.h"
#include "graphics/glyph_lists.h"
#include "graphics/modDrawFont.h"
#include "platform/prompts.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <ft2build.h>

#include FT_FREETYPE_H

namespace {

using graphics::FontRequest;

const QString Faces = QStringLiteral(MORVEL_PROGRAM_DIR "/fonts/");
const QString Sample = QStringLiteral("Lap 12/34 (best 01:23.456) OK!");
constexpr int Dots = 96;
constexpr int Points = 24;

FontRequest request(int size)
{
    FontRequest request;
    request.face = QStringLiteral("Liberation Sans");
    request.size = size;
    return request;
}

// The limit's measure: the characters of both lists, the face open already, nothing kept.
void engineAlone(benchmark::State &state)
{
    FT_Library library = nullptr;
    FT_Face face = nullptr;
    FT_Init_FreeType(&library);
    const QByteArray file = (Faces + QStringLiteral("LiberationSans-Regular.ttf")).toLocal8Bit();
    if (FT_New_Face(library, file.constData(), 0, &face) != 0) {
        state.SkipWithError("the face is missing");
        return;
    }
    FT_Set_Char_Size(face, 0, state.range(0) * 64 * 4, Dots, Dots);
    const auto rasterise = [face](auto characters) {
        for (const auto character : characters) {
            FT_Load_Glyph(face, FT_Get_Char_Index(face, character), FT_LOAD_NO_HINTING);
            FT_Render_Glyph(face->glyph, FT_RENDER_MODE_NORMAL);
            benchmark::DoNotOptimize(face->glyph->bitmap.buffer);
        }
    };
    for (auto _ : state) {
        rasterise(graphics::standardList());
        rasterise(graphics::extendedList());
    }
    FT_Done_FreeType(library);
}

// From the face's file to the bytes of both font files.
void renderPair(benchmark::State &state)
{
    platform::NoProgress progress;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            graphics::renderFont(request(static_cast<int>(state.range(0))), Faces, progress));
}

// The same, and both files on the disk. The flush to the device is the disk's time, not this program's.
void generatePair(benchmark::State &state)
{
    const QTemporaryDir folder;
    platform::NoProgress progress;
    platform::SilentPrompts prompts;
    const graphics::FontFolders folders{folder.path() + QLatin1Char('/'), Faces};
    for (auto _ : state)
        graphics::GenerateFont(request(static_cast<int>(state.range(0))), folders, progress, prompts);
}

// What a redraw takes: the cached font from the store and 30 characters onto a picture.
void drawCachedText(benchmark::State &state)
{
    const QTemporaryDir root;
    platform::Folders folders;
    folders.applicationData = root.path() + QLatin1Char('/');
    folders.program = QStringLiteral(MORVEL_PROGRAM_DIR "/");
    platform::NoProgress progress;
    graphics::FontStore store(folders);
    const FontRequest font = request(Points);
    store.open(font, Points, progress);
    QImage picture(720, 576, QImage::Format_RGB32);
    picture.fill(0xFF204060);
    graphics::TextLook look;
    look.position = {10, 10};
    look.colour = 0x00FFC040;
    look.opacity = static_cast<quint8>(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(drawText(store.open(font, Points, progress)->text, Sample, look, picture));
}

BENCHMARK(engineAlone)->Arg(12)->Arg(Points)->Arg(72)->Unit(benchmark::kMicrosecond);
BENCHMARK(renderPair)->Arg(12)->Arg(Points)->Arg(72)->Unit(benchmark::kMicrosecond);
BENCHMARK(generatePair)->Arg(Points)->Unit(benchmark::kMicrosecond);
BENCHMARK(drawCachedText)->Arg(255)->Arg(180)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
