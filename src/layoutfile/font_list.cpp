#include "layoutfile/font_list.h"

#include "common/code_page.h"
#include "common/rounding.h"
#include "platform/guards.h"

namespace layoutfile {

namespace {

// The fonts' files of one kind, back to back, with a directory entry for each.
template <typename Entry, typename Rasters>
void addFiles(RecordGroups &groups, const std::vector<std::shared_ptr<const graphics::ReadyFont>> &fonts,
              QByteArray graphics::FontPair::*file)
{
    QByteArray rasters;
    quint8 id = 0;
    for (const auto &font : fonts) {
        const QByteArray &bytes = font->files.*file;
        groups.add(Entry{id++, static_cast<qint32>(bytes.size()), static_cast<qint32>(rasters.size())});
        rasters += bytes;
    }
    groups.add(Rasters{Bulk{rasters}});
}

} // namespace

FontList::Name FontList::add(const graphics::FontRequest &request, int usualSize)
{
    const QString name = graphics::fontFileName(request);
    const QByteArray stored = common::toCodePage(name);
    qsizetype place = m_names.indexOf(name);
    if (place < 0) {
        place = common::toInteger<quint8>(static_cast<double>(m_names.size()));
        if (m_store && m_isStrict)
            makeFont(request, usualSize);
        else if (m_store && !platform::skipFailures([&] { makeFont(request, usualSize); }))
            giveUpFonts();
        if (m_store && (m_fonts.back()->standsInFor(request) || common::fromCodePage(stored) != name))
            m_replaced.append(name);
        m_names.append(name);
    }
    return {static_cast<quint8>(place), {stored}};
}

void FontList::makeFont(const graphics::FontRequest &request, int usualSize)
{
    m_fonts.push_back(m_store->open(request, usualSize, m_progress));
}

void FontList::giveUpFonts()
{
    m_store = nullptr;
    m_fonts.clear();
}

void FontList::addRecords(RecordGroups &groups) const
{
    if (m_fonts.empty())
        return;
    addFiles<FontDirectoryRecord, FontRastersRecord>(groups, m_fonts, &graphics::FontPair::standard);
    addFiles<ExtendedFontDirectoryRecord, ExtendedFontRastersRecord>(groups, m_fonts,
                                                                     &graphics::FontPair::extended);
}

} // namespace layoutfile
