#pragma once

#include "forms/dialog_of.h"
#include "recorder/dialogs/gear_grid.h"
#include "recorder/dialogs/span_chart.h"
#include "recorder/gear_bands.h"
#include "recorder/variable_list.h"

namespace recorder {

// The fields of the dialog beside its grid.
struct GearSetup
{
    QString count;
    quint8 option = 0; // row of the methods
    qint32 variable = 0;
};

// `typed` holds the number of gears.
std::optional<forms::Verdict> validateGears(const forms::Typed &typed);

// "Gear indicator setup": how the recorder derives the gear, and between which limits it recognises each.
class frmGearDisplay final : public forms::DialogOf<GearSetup>
{
public:
    frmGearDisplay(RecorderSettings &settings, const variables::VariableTable &table,
                   const forms::Context &context);
    ~frmGearDisplay() override { hide(); } // takes the focus away while there is a window to tell of it

protected:
    std::optional<forms::Verdict> validate(const forms::Typed &typed) const override
    {
        return validateGears(typed);
    }
    void set(GearSetup &setup) override;

private:
    void addCount();
    void addMethod();
    void addLimits();
    void takeCount();
    void complainOfCount();
    bool isCountRefused(); // which is told
    void askForRatios();
    void drawChart();

    RecorderSettings &m_settings;
    const variables::VariableTable &m_table;
    GearRatios m_ratios; // as entered last
    GearGrid *m_grid;
    SpanChart *m_chart;
    forms::TextField *m_count = nullptr; // txtNumOfGears
};

} // namespace recorder
