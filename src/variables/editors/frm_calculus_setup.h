#pragma once

#include <QComboBox>
#include <QDialog>

#include <optional>

namespace variables {

// The window that sets what is integrated or differentiated.
class FrmCalculusSetup final : public QDialog
{
    Q_OBJECT

public:
    // `mode` as in the catalogue record, 0 to 4; any other one shows as 0.
    FrmCalculusSetup(qint32 mode, QWidget *parent);

    // Runs the window. The chosen mode, or nothing when the user cancels.
    std::optional<qint32> run();

private:
    QComboBox *m_modes; // CalcCombo
};

} // namespace variables
