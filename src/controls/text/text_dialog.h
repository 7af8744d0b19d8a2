#pragma once

#include "controls/property_dialog.h"
#include "controls/text/text_control.h"

namespace controls {

// What the dialogs of the families that show a text share.
template <typename Control, typename Values>
class TextDialog : public PropertyDialog<Control, Values>
{
protected:
    using PropertyDialog<Control, Values>::PropertyDialog;

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
        this->font(
            [](Values &values) {
                return forms::FontParts<qint16, quint8>{
                    values.face,      values.curFontSize,      values.curBold,
                    values.curItalic, values.curStrikethrough, values.curUnderline};
            },
            {"cmdFont", "&Font"}, "lblFont");
    }

    // The box goes with its place: next to another one, a place left of the canvas would be a right edge.
    void setArranged(Values &values)
    {
        Control &control = this->control();
        control.arrange(values);
        control.set(values);
        control.setBox(values.box);
    }
};

} // namespace controls
