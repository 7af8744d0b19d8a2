#include "controls/property_dialog.h"

namespace controls {

using namespace Qt::StringLiterals;

QString correctionQuestion(const QString &complaint)
{
    return complaint + u"\nPress OK to continue with automatic correction"_s;
}

forms::Verdict correctable(const QString &complaint, const QList<forms::Correction> &corrections)
{
    return {forms::Verdict::Kind::OkCancel, platform::Icon::Critical, correctionQuestion(complaint),
            corrections};
}

void ColourRows::name() const
{
    colour.caption()->setObjectName(u"lblColour"_s);
    minimum.caption()->setObjectName(u"lblColourMin"_s);
    maximum.caption()->setObjectName(u"lblColourMax"_s);
}

void ColourRows::showChoice() const
{
    const bool fixedColour = variable.row() == 0;
    colour.setEnabled(fixedColour);
    colour.caption()->setVisible(fixedColour);
    for (forms::NumberField *limit : {&minimum, &maximum}) {
        limit->setEnabled(!fixedColour);
        limit->caption()->setVisible(!fixedColour);
    }
}

void ColourRows::chooseColour() const
{
    if (variable.row() != 0)
        colour.swatch().setColour(0);
}

std::optional<forms::Verdict> refusedScale(const forms::Typed &typed)
{
    if (typed.number("txtMin") == typed.number("txtMax"))
        return forms::refusal(u"Can't use same value for minimum and maximum "_s);
    return std::nullopt;
}

std::optional<forms::Verdict> refusedOpacity(const forms::Typed &typed, const QString &text, double most)
{
    const double opacity = typed.number("txtAlfa");
    if (opacity < 0 || opacity > most)
        return forms::refusal(text);
    return std::nullopt;
}

} // namespace controls
