#pragma once

#include "common/code_page.h"
#include "controls/text/text_control.h"
#include "layoutfile/field_link.h"
#include "layoutfile/font_list.h"

namespace layoutfile {

// What the records of a display and of a text tag have in common, beside their positions.

void linkText(auto &values, auto &record, auto field)
{
    linkLimits(values, record, field);
    linkColour(values, record, field);
    field(values.curAlfa, record.alpha);
}

// `usualSize`, in points, is the family's.
void putFont(const controls::TextValues &values, int usualSize, FontList &fonts, auto &record)
{
    const FontList::Name name = fonts.add(values.font(), usualSize);
    record.fontId = name.id;
    record.fontFile = name.file;
}

void takeFont(controls::TextValues &values, const auto &record)
{
    const auto font = graphics::splitFontFileName(common::fromCodePage(record.fontFile.text));
    values.face = font.face;
    values.curFontSize = static_cast<qint16>(font.size);
    values.curBold = font.style.bold;
    values.curItalic = font.style.italic;
    values.curStrikethrough = font.style.strikethrough;
    values.curUnderline = font.style.underline;
}

// The place in a record: the sign of x tells the alignment. The control resolves a right edge once its text
// is known.
inline void takePlace(controls::TextValues &values, qint16 x, qint16 y)
{
    values.align = static_cast<quint8>(x < 0 ? controls::TextAlign::Right : controls::TextAlign::Left);
    values.curCenterX = x;
    values.curCenterY = y;
}

} // namespace layoutfile
