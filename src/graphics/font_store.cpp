#include "graphics/font_store.h"

#include "common/run_time_error.h"
#include "platform/file_replace.h"

#include <QFileInfo>

namespace graphics {

namespace {

constexpr qsizetype LargestCache = 32LL * 1024 * 1024; // bytes of decoded glyphs

} // namespace

FontStore::FontStore(const platform::Folders &folders) : m_folders(folders), m_cache(LargestCache) {}

FontFolders FontStore::folders() const { return {m_folders.FontFolder(), m_folders.shippedFaces()}; }

QString FontStore::standardPath(const FontRequest &request) const
{
    return m_folders.FontFolder() + fontFileName(request);
}

QString FontStore::extendedPath(const FontRequest &request) const
{
    return m_folders.FontFolder() + extendedFontFileName(request);
}

bool FontStore::has(const FontRequest &request) const
{
    return platform::FileExists(standardPath(request)) != 0 &&
           platform::FileExists(extendedPath(request)) != 0;
}

bool FontStore::ensure(const FontRequest &request, platform::Progress &progress, platform::Prompts &prompts)
{
    return has(request) || generate(request, progress, prompts);
}

bool FontStore::generate(const FontRequest &request, platform::Progress &progress, platform::Prompts &prompts)
{
    m_cache.remove(standardPath(request)); // two files of one size can be written in the same millisecond
    return GenerateFont(request, folders(), progress, prompts);
}

FontStore::Stamp FontStore::stampOf(const QString &path)
{
    const QFileInfo file(path);
    return {file.lastModified(), file.size()};
}

std::shared_ptr<const TextFont> FontStore::open(const FontRequest &request)
{
    const QString standard = standardPath(request);
    const QString extended = extendedPath(request);
    const Entry entry{stampOf(standard), stampOf(extended), nullptr};
    const Entry *known = m_cache.object(standard);
    if (known && known->standard == entry.standard && known->extended == entry.extended)
        return known->font;
    auto font = TextFont::fromFiles(platform::readFile(standard), platform::readFile(extended));
    if (!font)
        throw common::RunTimeError(QStringLiteral("%1: not a font file").arg(standard));
    const qsizetype cost = font->bytes();
    auto shared = std::make_shared<const TextFont>(*std::move(font));
    m_cache.insert(standard, new Entry{entry.standard, entry.extended, shared}, cost);
    return shared;
}

} // namespace graphics
