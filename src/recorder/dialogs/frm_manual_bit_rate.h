#pragma once

#include "forms/dialog_of.h"
#include "recorder/dialogs/span_chart.h"

namespace recorder {

// "Bit Rate": sets the rate of the video in Mbps, and tells what it means.
class frmManualBitRate final : public forms::DialogOf<quint8>
{
public:
    frmManualBitRate(quint8 &rate, const forms::Context &context);

protected:
    void set(quint8 &rate) override { m_rate = rate; }

private:
    void addFigures();
    void addNotes();
    void showRate(int rate);

    quint8 &m_rate;
    QLabel *m_video = nullptr;   // lblVideoRate
    QLabel *m_usage = nullptr;   // lblUsage
    QLabel *m_note = nullptr;    // lblNote
    QLabel *m_warning = nullptr; // lblWarning
    SpanChart *m_cards = nullptr;
};

} // namespace recorder
