#include "recorder/dialogs/frm_rpm.h"

namespace recorder {

frmRPM::frmRPM(float &pulsesPerRevolution, const forms::Context &context)
    : Dialog(QStringLiteral("RPM"), context), m_pulses(pulsesPerRevolution),
      m_field(add<forms::NumberField>("txtPulses", decimalMark()))
{
    addRow(m_field, "&Pulses per revolution");
    m_field.show(m_pulses);
    m_field.requireNumber();
    addButtons(forms::okAndCancel());
}

} // namespace recorder
