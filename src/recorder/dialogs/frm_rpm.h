#pragma once

#include "forms/dialog_of.h"

namespace recorder {

// "RPM": the pulses of the engine speed input per revolution.
class frmRPM final : public forms::DialogOf<float>
{
public:
    frmRPM(float &pulsesPerRevolution, const forms::Context &context);

protected:
    void set(float &pulses) override { m_pulses = pulses; }

private:
    float &m_pulses;
};

} // namespace recorder
