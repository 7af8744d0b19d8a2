#pragma once

#include "graphics/font_store.h"
#include "layoutfile/layout_file.h"

namespace layoutfile {

// The fonts of a layout: each distinct one once, in the order of first use.
class FontList
{
public:
    // Without a store there are ids and names only, and no font is made: for layouts that no recorder reads.
    // The same holds, unless it is `strict`, once a font cannot be made.
    FontList(graphics::FontStore *store, bool strict, platform::Progress &progress)
        : m_store(store), m_isStrict(strict), m_progress(progress)
    {
    }

    // How a record names its font.
    struct Name
    {
        quint8 id = 0;
        FixedText<30> file;
    };
    // A font that cannot be made is stored as the one that stands in for it; `usualSize`, in points, is the
    // family's. Throws RunTimeError for the 257th, and, if it is strict, when no font can be made.
    Name add(const graphics::FontRequest &request, int usualSize);

    // Those that something else stands in for, and those whose name a layout cannot hold.
    const QStringList &replaced() const { return m_replaced; }

    // Adds the directories and the rasters; nothing without fonts.
    void addRecords(RecordGroups &groups) const;

private:
    void makeFont(const graphics::FontRequest &request, int usualSize);
    void giveUpFonts();

    graphics::FontStore *m_store;
    bool m_isStrict;
    platform::Progress &m_progress; // of the fonts that have to be made
    QStringList m_names;
    QStringList m_replaced;
    std::vector<std::shared_ptr<const graphics::ReadyFont>> m_fonts; // as many as there are names, or none
};

} // namespace layoutfile
