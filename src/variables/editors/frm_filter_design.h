#pragma once

#include "forms/dialog_of.h"
#include "variables/editors/chart.h"
#include "variables/filter_settings.h"

namespace variables {

// The window that designs a variable's digital filter and shows its frequency response. What it is closed
// with is within bounds.
class frmFilterDesign final : public forms::DialogOf<FilterSettings>
{
public:
    frmFilterDesign(const QString &variable, const FilterSettings &initial, const forms::Context &context);
    ~frmFilterDesign() override { hide(); } // takes the focus away while there is a window to tell of it

protected:
    void set(FilterSettings &filter) override { filter = filterWithinBounds(filter); }

private:
    void addSettings();
    forms::NumberField &frequency(double FilterSettings::*member, const forms::RowText &row);
    void RegenScreen(); // brings the fields within bounds and draws the response
    void ShowRelevantOptions(const FilterSettings &filter);

    forms::ListField &m_model;              // cmbModel
    QGroupBox *m_settings = nullptr;        // fraSettings
    forms::NumberField *m_upper = nullptr;  // txtUpperFrequency
    forms::NumberField *m_lower = nullptr;  // txtLowerFrequency
    forms::NumberField *m_ripple = nullptr; // txtRipple
    Chart *m_chart;                         // chtResponse
};

} // namespace variables
