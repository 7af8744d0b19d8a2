#pragma once

#include "forms/dialog.h"
#include "forms/list_field.h"
#include "forms/text_field.h"
#include "recorder/recorder_settings.h"
#include "variables/catalogue.h"

namespace recorder {

struct TriggerNames;

// "Auto Start / Stop Recording": when the recorder begins and ends by itself. Opening it chooses variable 1
// where none is chosen. OK stores what fits up to the first text that does not, and then stays open.
class frmStartStopRec final : public forms::Dialog
{
public:
    frmStartStopRec(RecordingTrigger &autoStart, RecordingTrigger &autoStop,
                    const variables::VariableTable &table, const forms::Context &context);

protected:
    void take() override;

private:
    // What one condition is stored in, and its fields.
    struct Rows
    {
        RecordingTrigger &trigger;
        forms::ListField &variable;
        forms::ListField &condition;
        forms::NumberField &value;
        forms::NumberField &time;
    };

    Rows addRows(const TriggerNames &names, RecordingTrigger &trigger, const variables::VariableTable &table);

    std::vector<Rows> m_rows; // start, stop
};

} // namespace recorder
