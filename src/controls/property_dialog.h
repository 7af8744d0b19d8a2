#pragma once

#include "controls/overlay_control.h"
#include "forms/dialog_of.h"
#include "variables/variable_choices.h"

#include <QApplication>

namespace controls {

// The standard colour of everything that is drawn: red.
inline constexpr quint32 StandardColour = 0x0000FF;

// What asks whether to correct what it complains of, as all property dialogs do.
QString correctionQuestion(const QString &complaint);
// The verdict that asks so. OK makes the corrections.
forms::Verdict correctable(const QString &complaint, const QList<forms::Correction> &corrections);

// The rows that a colour and the variable that takes its place consist of: one excludes the other.
struct ColourRows
{
    forms::ColourField &colour;
    forms::ListField &variable;
    forms::NumberField &minimum;
    forms::NumberField &maximum;

    void name() const;         // the captions, by the contract
    void showChoice() const;   // what is enabled and which captions show
    void chooseColour() const; // black for a variable
};

// The refusal of a scale in "txtMin" and "txtMax" that ends where it begins.
std::optional<forms::Verdict> refusedScale(const forms::Typed &typed);

// The refusal of an opacity in "txtAlfa" that is negative or above `most`.
std::optional<forms::Verdict> refusedOpacity(const forms::Typed &typed, const QString &text,
                                             double most = 100);
// What some families refuse above although a percentage is typed: deliberate.
inline constexpr double MostOfAlphaByte = 255;

// Limits of a variable between which a control shows. Two of 0 stand for none.
template <typename Values>
bool hasLimits(const Values &values)
{
    return values.curLowerLimit != 0 || values.curUpperLimit != 0;
}
// Makes them none where the dialog's tick box `isLimited` is off.
template <typename Values>
void dropUntickedLimits(Values &values)
{
    if (!values.isLimited)
        values.curLowerLimit = values.curUpperLimit = 0;
}

// What the property dialogs of the families share: the control, the rows of its colour, and rows that bind a
// variable of the host's catalogue.
template <typename Control, typename Values>
class PropertyDialog : public forms::DialogOf<Values>
{
protected:
    using Base = forms::DialogOf<Values>;

    PropertyDialog(Control &control, const QString &title, const Values &values)
        : Base(title, values,
               {control.host().prompts(), control.host().locale(), QApplication::activeWindow()}),
          m_control(control)
    {
    }

    Control &control() const { return m_control; }
    ControlHost &host() const { return m_control.host(); }
    void applied() override { m_control.AssignProperties(); }

    template <typename Member>
    forms::ListField &variable(Member member, const forms::RowText &row)
    {
        return variableList(member, row, {});
    }
    // With "None" for no variable.
    template <typename Member>
    forms::ListField &variableOrNone(Member member, const forms::RowText &row)
    {
        return variableList(member, row, {forms::none()});
    }

    // The variable that is shown, and its scale.
    void scaleRows()
    {
        this->addGroup("Variable");
        variable(&Values::curVarID, {"cmbVariable", "Va&riable"});
        Base::number(&Values::curMin, {"txtMin", "Mi&nimum"});
        Base::number(&Values::curMax, {"txtMax", "Ma&ximum"});
        Base::number(&Values::curDefaultVal, {"txtDefaultVal", "&Default value"});
    }

    // The colour of the family's graphic, and the variable that changes it between two limits.
    void colourRows()
    {
        forms::ColourField &colour = Base::colour(&Values::curColour, {"picForeColour", "C&olour"},
                                                  "cmdResetForeColour", StandardColour);
        const ColourRows rows{
            colour, variableOrNone(&Values::curColourVariable, {"cmbColourVariable", "Colour &variable"}),
            Base::number(&Values::curColourVarMin, {"txtColourVarMin", "Colour minimum"}),
            Base::number(&Values::curColourVarMax, {"txtColourVarMax", "Colour maximum"})};
        rows.name();
        this->react(rows.variable, [rows] { rows.chooseColour(); });
        this->follow([rows] { rows.showChoice(); });
    }
    void colourAndOpacity()
    {
        colourRows();
        Base::percent(&Values::curAlfa, {"txtAlfa", "O&pacity", "%"});
    }

private:
    template <typename Member>
    forms::ListField &variableList(Member member, const forms::RowText &row, forms::Choices choices)
    {
        const variables::VariableTable &table = host().catalogue().live;
        const qint32 stored = std::invoke(member, Base::kept());
        for (forms::Choice &choice :
             variables::variableChoices(table, &variables::VariableRecord::Available, stored))
            choices.push_back(std::move(choice));
        forms::ListField &list = Base::choice(member, row, choices, 0);
        list.takeWhatIsShown();
        return list;
    }

    Control &m_control;
};

} // namespace controls
