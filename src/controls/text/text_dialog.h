#pragma once

#include "controls/property_dialog.h"
#include "controls/text/text_control.h"
#include "forms/font_field.h"

namespace controls {

// What the dialogs of the families that show a text share.
template <typename Values>
class TextDialog : public PropertyDialog<Values>
{
protected:
    using PropertyDialog<Values>::PropertyDialog;

    // Answers the alignment.
    forms::ListField &placeRows()
    {
        this->number(&Values::curCenterX, {"txtCenterX", "&X", "pixels"});
        this->number(&Values::curCenterY, {"txtCenterY", "&Y", "pixels"});
        return this->choice(&Values::align, {"cmbAlign", "A&lignment"},
                            {{QStringLiteral("Left"), static_cast<int>(TextAlign::Left)},
                             {QStringLiteral("Right"), static_cast<int>(TextAlign::Right)}},
                            static_cast<int>(TextAlign::Right));
    }

    void fontRow()
    {
        auto &field = this->template add<forms::FontField>("cmdFont", "lblFont", this->prompts());
        this->addRow(field, "&Font");
        this->bind(field, [](Values &values) {
            return forms::FontParts<qint16, quint8>{
                values.face,      values.curFontSize,      values.curBold,
                values.curItalic, values.curStrikethrough, values.curUnderline};
        });
    }

    void colourAndOpacity()
    {
        this->colourRows();
        this->percent(&Values::curAlfa, {"txtAlfa", "O&pacity", "%"});
    }

    // The box goes with its place: next to another one, a place left of the canvas would be a right edge.
    template <typename Control>
    static void setArranged(Control &control, Values &values)
    {
        control.arrange(values);
        control.set(values);
        control.setBox(values.box);
    }
};

} // namespace controls
