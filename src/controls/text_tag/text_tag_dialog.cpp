#include "controls/text_tag/text_tag_dialog.h"

#include "controls/text_tag/modTexttypes.h"

namespace controls {

using namespace Qt::StringLiterals;

namespace {

using V = TypedText;

} // namespace

TypedText typedText(const TextTagValues &values)
{
    TypedText typed{values};
    if (typed.text.isEmpty())
        typed.text = TextTagValues::UsualText;
    if (values.curVarID == 0)
        typed.textType = common::toIntegerClamped<int>(values.curDefaultVal);
    return typed;
}

TextTagValues storedValues(const TypedText &typed, const TypedText &kept)
{
    TextTagValues values = typed;
    if (typed.curVarID != 0)
        return values;
    const bool isKept = kept.curVarID == 0 && kept.textType == typed.textType;
    values.curDefaultVal = isKept ? kept.curDefaultVal : static_cast<float>(typed.textType);
    values.text = fieldText(typed.textType, typed.text);
    return values;
}

std::optional<forms::Verdict> validateTextTag(const forms::Typed &typed)
{
    if (typed.text("txtText").isEmpty())
        return forms::refusal(u"Please enter text to display"_s);
    return refusedOpacity(typed, u"Invalid Alfa Value"_s);
}

TextTagDialog::TextTagDialog(TextTag &tag)
    : TextDialog(tag, u"Simple Text Properties"_s, typedText(tag.get()))
{
    forms::TextField &text = addContent();
    addGroup("Place and font");
    forms::ListField &align = placeRows();
    follow([&text, &align] { text.box().setAlignment(align.row() == 0 ? Qt::AlignLeft : Qt::AlignRight); });
    fontRow();
    addGroup("Colour");
    colourAndOpacity();
    finish(forms::applyAndCancel());
}

forms::TextField &TextTagDialog::addContent()
{
    addGroup("Text");
    auto &type = bind(add<forms::ListField>("cmbTextType", forms::numbered(TextTypes)), &V::textType);
    auto &value = bind(add<forms::NumberField>("txtDefaultVal", decimalMark()), &V::curDefaultVal);
    addTurns(type, value);
    type.caption()->setObjectName(u"lblDefaultVal"_s);
    auto &text = this->text(&V::text, {"txtText", "Text"});
    text.caption()->setObjectName(u"lblText"_s);
    addWide(new QLabel(u"Note : Maximum 30 characters for text"_s));
    addGroup("Hiding");
    auto &variable = variableOrNone(&V::curVarID, {"cmbVariable", "Va&riable"});
    auto &lower = number(&V::curLowerLimit, {"txtLowerLimit", "Lo&wer limit"});
    auto &upper = number(&V::curUpperLimit, {"txtUpperLimit", "&Upper limit"});

    follow([&variable, &lower, &upper, &type, &value, &text] {
        const bool isFree = variable.row() == 0;
        lower.setEnabled(!isFree);
        upper.setEnabled(!isFree);
        isFree ? showTurn(type, value, "Special String") : showTurn(value, type, "Default Value");
        const bool isField = isFree && type.row() > 0;
        text.setEnabled(!isField);
        text.caption()->setText(isField ? u"Field"_s : u"Text"_s);
        text.setCaption(text.caption());
    });
    react(type, [&type, &text] { text.setText(type.row() > 0 ? type.text() : TextTagValues::UsualText); });
    react(variable, [&variable, &type, &text] {
        if (variable.row() == 0 && type.row() > 0)
            text.setText(type.text());
        else if (variable.row() > 0 && text.text().size() > TextTagValues::LongestText)
            text.setText(TextTagValues::UsualText);
    });
    return text;
}

void TextTagDialog::set(TypedText &values)
{
    static_cast<TextTagValues &>(values) = storedValues(values, kept());
    setArranged(values);
}

} // namespace controls
