#include "controls/digital_display/digital_display.h"

#include "common/number_text.h"
#include "controls/complexity.h"

#include <cmath>

namespace controls {

using namespace Qt::StringLiterals;

namespace {

constexpr int SecondsPerHour = 3600;
constexpr int SecondsPerMinute = 60;

using V = DigitalDisplayValues;
constexpr std::array Rows{
    property<&V::align>("curDAlign", "newDAlign"),
    property<&V::curBold>("curBold", "newBold"),
    property<&V::curItalic>("curItalic", "newItalic"),
    property<&V::face>("curFontName", "newFontName"),
    property<&V::curFontSize>("curFontSize", "newFontSize"),
    property<&V::curStrikethrough>("curStrikethrough", "newStrikethrough"),
    property<&V::curUnderline>("curUnderline", "newUnderline"),
    element<&V::curColour>(),
    element<&V::backColour>(),
    property<&V::text>("curDText", "newDText"),
    property<&V::curVarID>("curVarID", "newVarID"),
    property<&V::curCenterX>("curCenterX", "newCenterX"),
    property<&V::curCenterY>("curCenterY", "newCenterY"),
    property<&V::curColour>("curColour", "newColour"),
    property<&V::curDecPlaces>("curDecPlaces", "newDecPlaces"),
    property<&V::curLowerLimit>("curLowerLimit", "newLowerLimit"),
    property<&V::curUpperLimit>("curUpperLimit", "newUpperLimit"),
    property<&V::curDefaultVal>("curDefaultVal", "newDefaultVal"),
    property<&V::curDecMark>("curDecMark", "newDecMark"),
    property<&V::curAlfa>("curAlfa", "newAlfa"),
    property<&V::curTimeFormat>("curTimeFormat", "newTimeFormat"),
    property<&V::curColourVariable>("curColourVariable", "newColourVariable"),
    property<&V::curColourVarMin>("curColourVarMin", "newColourVarMin"),
    property<&V::curColourVarMax>("curColourVarMax", "newColourVarMax"),
    property<&V::curBkColour>("curBkColour", "newBkColour").notSerialised(),
};

// At least two digits; hours may have more.
QString timePart(double number)
{
    const QString digits = QString::number(std::fabs(number), 'f', 0).rightJustified(2, '0'_L1);
    return number < 0 ? '-'_L1 + digits : digits;
}

// The digits after the mark of the plain number; a number with an exponent has none that a time could show.
QString fractionDigits(float number)
{
    const QString plain = common::shortestText(number);
    return plain.contains('E'_L1) ? QString() : plain.section('.'_L1, 1);
}

QString timeText(float seconds, int places)
{
    const double whole = std::trunc(static_cast<double>(seconds));
    const double inHour = std::fmod(whole, SecondsPerHour);
    QString text = timePart(std::trunc(whole / SecondsPerHour)) + ':'_L1 +
                   timePart(std::trunc(inHour / SecondsPerMinute)) + ':'_L1 +
                   timePart(std::fmod(inHour, SecondsPerMinute));
    if (places > 0)
        text += '.'_L1 + fractionDigits(seconds).leftJustified(places, '0'_L1, true);
    return text;
}

} // namespace

const PropertyTable &digitalDisplayProperties()
{
    static constexpr PropertyTable Table{Rows};
    return Table;
}

QString displayText(const DigitalDisplayValues &values)
{
    const float number = values.curDefaultVal;
    if (values.curTimeFormat != 0 && std::isfinite(number))
        return timeText(number, values.curDecPlaces);
    if (values.curDecPlaces > 0)
        return common::fixedText(number, values.curDecPlaces, values.curDecMark == 0 ? u"."_s : u","_s);
    return common::shortestText(number);
}

void DigitalDisplay::applyInitialProperties()
{
    set(DigitalDisplayValues());
    updatePosition();
    takeBox();
}

QString DigitalDisplay::shownText(const TextValues &values) const
{
    return displayText(static_cast<const DigitalDisplayValues &>(values));
}

double DigitalDisplay::complexity() const
{
    return complexity::digitalDisplay(m_values.curFontSize, m_values.text.size());
}

} // namespace controls
