#pragma once

#include "platform/locale.h"
#include "variables/units.h"

#include <QDialog>
#include <QLineEdit>

#include <array>
#include <optional>

namespace variables {

// The window in which the coefficients of a polynomial are typed.
class FrmEnterEquationManually final : public QDialog
{
    Q_OBJECT

public:
    FrmEnterEquationManually(const Coefficients &initial, const platform::NumberLocale &locale,
                             QWidget *parent);

    // Runs the window. Nothing when the user cancels.
    std::optional<Coefficients> run();

private:
    std::array<QLineEdit *, 4> m_fields; // PolyCoeffsTxt_0 to _3, highest power first
};

} // namespace variables
