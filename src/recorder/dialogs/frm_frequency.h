#pragma once

#include "forms/dialog.h"
#include "recorder/dialogs/message_grid.h"

namespace recorder {

// "Set Message Frequency": at which rates messages are stored and sent to the serial output. Works on a copy
// of the table, and writes the table to its file as it closes.
class frmFrequency final : public forms::Dialog
{
public:
    frmFrequency(MessageTable &table, QString file, const forms::Context &context);

protected:
    void take() override { m_table = m_grid->messages().table(); }
    void done(int result) override;

private:
    QLayout *makeButtons();

    MessageTable &m_table;
    QString m_file;
    MessageGrid *m_grid;
};

} // namespace recorder
