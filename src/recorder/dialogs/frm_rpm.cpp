#include "recorder/dialogs/frm_rpm.h"

namespace recorder {

frmRPM::frmRPM(float &pulsesPerRevolution, const forms::Context &context)
    : DialogOf(QStringLiteral("RPM"), pulsesPerRevolution, context), m_pulses(pulsesPerRevolution)
{
    const auto itself = [](float &value) -> float & { return value; };
    number(itself, {"txtPulses", "&Pulses per revolution"}).requireNumber();
    finish(forms::okAndCancel());
}

} // namespace recorder
