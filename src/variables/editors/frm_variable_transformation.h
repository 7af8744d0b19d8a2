#pragma once

#include "forms/dialog_of.h"
#include "variables/editors/pick_list.h"
#include "variables/transformation.h"
#include "variables/units.h"

namespace variables {

// The window that chooses a variable's unit or edits its equation. It works on the staging table.
class frmVariableTransformation final : public forms::DialogOf<TransformationForm>
{
public:
    // `index` is a slot of the catalogue; `generated` keeps the coefficients that a generator left.
    frmVariableTransformation(int index, Catalogue &catalogue, Coefficients &generated,
                              const forms::Context &context);

    // Runs the window; true when the record is another one afterwards.
    bool run();

protected:
    std::optional<forms::Verdict> validate(const forms::Typed &typed) const override;
    void set(TransformationForm &typed) override;

private:
    static VariableRecord &recordOf(Catalogue &catalogue, int index) { return catalogue.staging[index]; }
    VariableRecord &record() { return recordOf(m_catalogue, m_index); }
    forms::Context within() { return {prompts(), context().locale, this}; } // of the generators

    QLayout *newUnitRow();
    QGroupBox *newEquationPart();
    QLayout *newGeneratorRow();
    QLayout *newPickLists();
    void insert(const QString &text);
    void takeGenerated(const std::optional<Coefficients> &coefficients);

    int m_index;
    Catalogue &m_catalogue;
    Coefficients &m_generated;
    bool m_changed = false;

    forms::CheckField &m_standard; // Option1_0
    forms::ListField &m_units;     // StandardTransCombo
    forms::CheckField &m_custom;   // Option1_1
    forms::TextArea &m_equation;   // UserFunctionTxt
};

} // namespace variables
