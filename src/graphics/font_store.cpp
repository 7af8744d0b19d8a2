#include "graphics/font_store.h"

#include "common/run_time_error.h"
#include "graphics/face_source.h"
#include "platform/file_replace.h"
#include "platform/guards.h"

#include <QFileInfo>

namespace graphics {

namespace {

constexpr qsizetype LargestCache = 32LL * 1024 * 1024; // bytes of decoded glyphs and files
constexpr qsizetype MostOutlines = 16;                 // faces

std::shared_ptr<const ReadyFont> decoded(const FontRequest &request, const std::optional<FontPair> &files)
{
    auto text = files ? TextFont::fromFiles(files->standard, files->extended) : std::nullopt;
    return text ? std::make_shared<const ReadyFont>(ReadyFont{request, *files, *std::move(text)}) : nullptr;
}

qsizetype costOf(const ReadyFont *font)
{
    return font ? font->text.bytes() + font->files.standard.size() + font->files.extended.size() : 1;
}

} // namespace

bool ReadyFont::standsInFor(const FontRequest &wanted) const
{
    return fontFileName(request) != fontFileName(wanted);
}

FontStore::FontStore(const platform::Folders &folders)
    : m_folders(folders), m_cache(LargestCache), m_outlines(MostOutlines)
{
}

FontFolders FontStore::folders() const { return {m_folders.FontFolder(), m_folders.shippedFaces()}; }

QString FontStore::standardPath(const FontRequest &request) const
{
    return m_folders.FontFolder() + fontFileName(request);
}

QString FontStore::extendedPath(const FontRequest &request) const
{
    return m_folders.FontFolder() + extendedFontFileName(request);
}

std::shared_ptr<const ReadyFont> FontStore::open(const FontRequest &request, int usualSize,
                                                 platform::Progress &progress)
{
    const FontRequest wanted{storedFace(request.face), request.size, request.style};
    const FontRequest sameSize{DefaultFace, request.size, request.style};
    const FontRequest usual{DefaultFace, usualSize, request.style};
    for (const FontRequest &candidate : {wanted, sameSize, usual}) {
        if (auto font = find(candidate, progress))
            return font;
    }
    throw common::RunTimeError(QStringLiteral("The font %1 cannot be read").arg(DefaultFace));
}

bool FontStore::generate(const FontRequest &request, platform::Progress &progress, platform::Prompts &prompts)
{
    m_cache.remove(standardPath(request)); // two files of one size can be written in the same millisecond
    return GenerateFont(request, folders(), progress, prompts);
}

FontStore::Stamps FontStore::stampsOf(const FontRequest &request) const
{
    const auto stampOf = [](const QString &path) {
        const QFileInfo file(path);
        return file.isFile() ? Stamp{file.lastModified(), file.size()} : Stamp{};
    };
    return {stampOf(standardPath(request)), stampOf(extendedPath(request))};
}

std::shared_ptr<const ReadyFont> FontStore::find(const FontRequest &request, platform::Progress &progress)
{
    const QString key = standardPath(request);
    const Entry *known = m_cache.object(key);
    if (known && known->stamps == stampsOf(request))
        return known->font;
    auto font = decoded(request, readFiles(request));
    if (!font)
        font = decoded(request, makeFiles(request, progress));
    m_cache.insert(key, new Entry{stampsOf(request), font}, costOf(font.get()));
    return font;
}

std::optional<FontPair> FontStore::readFiles(const FontRequest &request) const
{
    const Stamps there = stampsOf(request);
    if (there.standard == Stamp{} || there.extended == Stamp{})
        return std::nullopt;
    std::optional<FontPair> files;
    platform::skipFailures([&] {
        files = {platform::readFile(standardPath(request)), platform::readFile(extendedPath(request))};
    });
    return files;
}

std::optional<FontPair> FontStore::makeFiles(const FontRequest &request, platform::Progress &progress) const
{
    if (!isComplete(request) || !isDrawable(request.face))
        return std::nullopt;
    std::optional<FontPair> files;
    platform::skipFailures([&] { files = renderFont(request, m_folders.shippedFaces(), progress); });
    if (files) // a folder that cannot be written to costs time, not the font
        platform::skipFailures([&] { writeFont(request, *files, m_folders.FontFolder()); });
    return files;
}

std::shared_ptr<const OutlineFont> FontStore::outlines(const QString &face, const FontStyle &style)
{
    const QString key = fontFileName({face, 0, style});
    if (const auto *kept = m_outlines.object(key))
        return *kept;
    auto made = std::make_shared<const OutlineFont>(storedFace(face), style, m_folders.shippedFaces());
    m_outlines.insert(key, new std::shared_ptr(made));
    return made;
}

} // namespace graphics
