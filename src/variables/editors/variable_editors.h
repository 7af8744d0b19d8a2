#pragma once

#include "forms/dialog.h"
#include "variables/units.h"

namespace variables {

// The windows that edit one variable of the catalogue. They are modal over `parent`, work on the staging
// table and answer whether the record is another one afterwards; what follows such an edit is the caller's
// (commitEdits). One object lives as long as the program: it keeps the coefficients that an equation was last
// generated from. An index outside the catalogue changes nothing.
class VariableEditors
{
public:
    VariableEditors(Catalogue &catalogue, platform::Prompts &prompts, const platform::NumberLocale &locale)
        : m_catalogue(catalogue), m_prompts(prompts), m_locale(locale)
    {
    }

    // Unit, or equation.
    bool editTransformation(int index, QWidget *parent);
    // Digital filter.
    bool editFilter(int index, QWidget *parent);
    // Integral or derivative.
    bool editCalculus(int index, QWidget *parent);

private:
    VariableRecord *recordAt(int index);
    forms::Context within(QWidget *parent) const { return {m_prompts, m_locale, parent}; }

    Catalogue &m_catalogue;
    platform::Prompts &m_prompts;
    const platform::NumberLocale &m_locale;
    Coefficients m_generated;
};

} // namespace variables
