#pragma once

#include "graphics/font_generator.h"
#include "graphics/outline_font.h"
#include "graphics/text_font.h"
#include "platform/folders.h"

#include <QCache>
#include <QDateTime>

#include <memory>

namespace graphics {

// A font to draw with and to store in a layout.
struct ReadyFont
{
    FontRequest request; // what it is: not what was asked for where that cannot be made
    FontPair files;      // the whole bytes of both its files; they have been decoded
    TextFont text;

    bool standsInFor(const FontRequest &wanted) const;
};

// The font files of a user: makes those that are missing or damaged, and keeps decoded fonts for as long as
// their files stay the same.
class FontStore
{
public:
    explicit FontStore(const platform::Folders &folders);

    QString standardPath(const FontRequest &request) const;
    QString extendedPath(const FontRequest &request) const;

    // The font, never null. It comes from its files; where they are missing or damaged it is made, and they
    // are written if that is possible. Where it cannot be made, because the face is not there or the size is
    // 0 or too large, the default face stands in: in the same size, or where that does not do in `usualSize`
    // (points). Opens no window and says nothing. Throws RunTimeError when not even that can be made.
    std::shared_ptr<const ReadyFont> open(const FontRequest &request, int usualSize,
                                          platform::Progress &progress);
    // The outlines of a face, never null; OutlineFont tells what stands in for one that is not there.
    std::shared_ptr<const OutlineFont> outlines(const QString &face, const FontStyle &style);
    // Makes both files, also when they are there. Results as GenerateFont().
    bool generate(const FontRequest &request, platform::Progress &progress, platform::Prompts &prompts);

    FontFolders folders() const;

private:
    struct Stamp
    {
        QDateTime modified;
        qint64 size = -1; // no file

        bool operator==(const Stamp &) const = default;
    };
    struct Stamps
    {
        Stamp standard;
        Stamp extended;

        bool operator==(const Stamps &) const = default;
    };
    struct Entry
    {
        Stamps stamps;
        std::shared_ptr<const ReadyFont> font; // null where the files cannot be made
    };
    Stamps stampsOf(const FontRequest &request) const;
    std::shared_ptr<const ReadyFont> find(const FontRequest &request, platform::Progress &progress);
    std::optional<FontPair> readFiles(const FontRequest &request) const;
    std::optional<FontPair> makeFiles(const FontRequest &request, platform::Progress &progress) const;

    const platform::Folders &m_folders;
    QCache<QString, Entry> m_cache; // by the path of the standard file
    QCache<QString, std::shared_ptr<const OutlineFont>> m_outlines;
};

} // namespace graphics
