#include "controls/digital_display/digital_display_dialog.h"

#include <algorithm>

namespace controls {

using namespace Qt::StringLiterals;

namespace {

using V = LimitedDisplay;

constexpr int MostPlaces = 20;

LimitedDisplay shownValues(const DigitalDisplay &display)
{
    return {display.get(), hasLimits(display.get())};
}

// As far as what was typed so far can be shown.
DigitalDisplayValues typedFormat(const forms::Typed &typed)
{
    DigitalDisplayValues values;
    const double places = common::parseNumber(typed.text("txtDecimalPlaces"));
    values.curDecPlaces =
        static_cast<quint8>(std::clamp(common::toIntegerClamped<int>(places), 0, MostPlaces));
    values.curDecMark = typed.row("cmbDecMark") == 1;
    values.curTimeFormat = typed.isOn("chkShowInTimeFormat");
    values.curDefaultVal = static_cast<float>(common::parseNumber(typed.text("txtDefaultVal")));
    return values;
}

// What the preview reads when the kind of format has just been chosen.
QString patternOf(DigitalDisplayValues format)
{
    if (format.curTimeFormat == 0)
        return u"0.00"_s;
    format.curDefaultVal = 0;
    return displayText(format);
}

} // namespace

std::optional<forms::Verdict> validateDigitalDisplay(const forms::Typed &typed)
{
    if (typed.number("txtDecimalPlaces") > MostPlaces)
        return forms::refusal(u"Invalid number of Decimal Places"_s, platform::Icon::Critical);
    if (typed.isOn("chkApplyLimits") && typed.number("txtLowerLimit") == 0 &&
        typed.number("txtUpperLimit") == 0)
        return forms::refusal(u"Upper and lower limit can't be 0"_s);
    return refusedOpacity(typed, u"Invalid Alpha Value"_s, MostOfAlphaByte);
}

DigitalDisplayDialog::DigitalDisplayDialog(DigitalDisplay &display)
    : TextDialog(display, u"Digital Display Properties"_s, shownValues(display))
{
    addGroup("Variable");
    variable(&V::curVarID, {"cmbVariable", "Va&riable"});
    addFormat();
    addLimits();
    addGroup("Place and font");
    placeRows();
    fontRow();
    addGroup("Colour");
    colourAndOpacity();
    finish(forms::applyAndCancel());
}

void DigitalDisplayDialog::addFormat()
{
    addGroup("Format");
    auto &value = number(&V::curDefaultVal, {"txtDefaultVal", "&Default value"});
    auto &places = number(&V::curDecPlaces, {"txtDecimalPlaces", "Decimal place&s"});
    auto &mark =
        choice(&V::curDecMark, {"cmbDecMark", "Decimal &mark"}, {{u"Dot (.)"_s, 0}, {u"Comma (,)"_s, 1}}, 1);
    mark.caption()->setObjectName(u"lblDecSymbol"_s);
    auto &time = check(&V::curTimeFormat, "chkShowInTimeFormat", "Show in &time format");
    auto *preview = new QLabel(displayText(kept()));
    preview->setObjectName(u"lblPreview"_s);
    auto *cell = new QHBoxLayout;
    cell->addWidget(preview);
    addRow("Preview", cell);
    follow([&mark, &time] { mark.setEnabled(!time.isOn()); });
    react(time, [this, preview] { preview->setText(patternOf(typedFormat(typed()))); });
    for (forms::Field *field : std::initializer_list<forms::Field *>{&value, &places, &mark})
        react(*field, [this, preview] { preview->setText(displayText(typedFormat(typed()))); });
}

void DigitalDisplayDialog::addLimits()
{
    addGroup("Limits");
    auto &limited = check(&V::isLimited, "chkApplyLimits", "L&imit the value displayed");
    auto &lower = number(&V::curLowerLimit, {"txtLowerLimit", "Lo&wer limit"});
    auto &upper = number(&V::curUpperLimit, {"txtUpperLimit", "&Upper limit"});
    enableBy(limited, {&lower, &upper});
}

void DigitalDisplayDialog::set(LimitedDisplay &values)
{
    dropUntickedLimits(values);
    setArranged(values);
}

} // namespace controls
