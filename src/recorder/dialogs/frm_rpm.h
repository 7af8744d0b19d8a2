#pragma once

#include "forms/dialog.h"
#include "forms/text_field.h"

namespace recorder {

// "RPM": the pulses of the engine speed input per revolution.
class frmRPM final : public forms::Dialog
{
public:
    frmRPM(float &pulsesPerRevolution, const forms::Context &context);

protected:
    void take() override { m_field.store(m_pulses); }

private:
    float &m_pulses;
    forms::NumberField &m_field; // txtPulses
};

} // namespace recorder
