#include "controls/text_tag/text_tag.h"

#include "common/code_page.h"
#include "controls/complexity.h"

namespace controls {

namespace {

using V = TextTagValues;
constexpr std::array Rows{
    property<&V::align>("curTAlign", "newTAlign"),
    property<&V::curBold>("curBold", "newBold"),
    property<&V::curItalic>("curItalic", "newItalic"),
    property<&V::face>("curFont", "newFont"),
    property<&V::curFontSize>("curFontSize", "newFontSize"),
    property<&V::curStrikethrough>("curStrikethrough", "newStrikethrough"),
    property<&V::curUnderline>("curUnderline", "newUnderline"),
    property<&V::curColour>("curForeColour", "newForeColour"),
    property<&V::curBkColour>("curBkColour", "newBkColour"),
    property<&V::text>("curTText", "newTText"),
    property<&V::curVarID>("curVarID", "newVarID"),
    property<&V::curLowerLimit>("curLowerLimit", "newLowerLimit"),
    property<&V::curUpperLimit>("curUpperLimit", "newUpperLimit"),
    property<&V::curDefaultVal>("curDefaultVal", "newDefaultVal"),
    property<&V::curAlfa>("curAlfa", "newAlfa"),
    property<&V::curColourVariable>("curColourVariable", "newColourVariable"),
    property<&V::curColourVarMin>("curColourVarMin", "newColourVarMin"),
    property<&V::curColourVarMax>("curColourVarMax", "newColourVarMax"),
    property<&V::curCenterX>("curCenterX", "newCenterX").notSerialised(),
    property<&V::curCenterY>("curCenterY", "newCenterY").notSerialised(),
};

} // namespace

const PropertyTable &textTagProperties()
{
    static constexpr PropertyTable Table{Rows};
    return Table;
}

QByteArray storedText(const QString &text)
{
    return common::toCodePage(QString(text).remove(QChar(0))).left(TextTagValues::LongestText);
}

void TextTag::applyInitialProperties()
{
    set(TextTagValues());
    updatePosition();
    takeBox();
}

// The canvas shows what a layout can hold.
QString TextTag::shownText(const TextValues &values) const
{
    return common::fromCodePage(storedText(values.text));
}

double TextTag::complexity() const { return complexity::textTag(m_values.curFontSize, m_values.text.size()); }

} // namespace controls
