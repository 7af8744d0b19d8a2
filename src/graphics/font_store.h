#pragma once

#include "graphics/font_generator.h"
#include "graphics/text_font.h"
#include "platform/folders.h"

#include <QCache>
#include <QDateTime>

#include <memory>

namespace graphics {

// The font files of a user: makes those that are missing, and keeps decoded fonts for as long as their files
// stay the same.
class FontStore
{
public:
    explicit FontStore(const platform::Folders &folders);

    QString standardPath(const FontRequest &request) const;
    QString extendedPath(const FontRequest &request) const;

    // Whether both files are there.
    bool has(const FontRequest &request) const;
    // Makes both files when one of them is missing. False, after a message, when they cannot be made from
    // this request; throws RunTimeError when no face can be read or a file not be written.
    bool ensure(const FontRequest &request, platform::Progress &progress, platform::Prompts &prompts);
    // The same, also when the files are there.
    bool generate(const FontRequest &request, platform::Progress &progress, platform::Prompts &prompts);

    // The decoded font; makes no files and shows nothing. Throws RunTimeError when a file is missing or
    // cannot be read.
    std::shared_ptr<const TextFont> open(const FontRequest &request);

    FontFolders folders() const;

private:
    struct Stamp
    {
        QDateTime modified;
        qint64 size = 0;

        bool operator==(const Stamp &) const = default;
    };
    struct Entry
    {
        Stamp standard;
        Stamp extended;
        std::shared_ptr<const TextFont> font;
    };
    static Stamp stampOf(const QString &path);

    const platform::Folders &m_folders;
    QCache<QString, Entry> m_cache; // by the path of the standard file
};

} // namespace graphics
