#pragma once

#include "platform/locale.h"
#include "variables/curve_fit.h"
#include "variables/editors/chart.h"
#include "variables/editors/point_grid.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>

namespace variables {

// The window that turns a calibration table into an equation.
class frmCurveFit final : public QDialog
{
    Q_OBJECT

public:
    frmCurveFit(const platform::NumberLocale &locale, QWidget *parent);
    ~frmCurveFit() override { hide(); } // takes the focus away while there is a window to tell of it

    // Runs the window. The coefficients of the equation shown, or nothing when the user cancels.
    std::optional<Coefficients> run();

private:
    void Recalculate();
    void DrawGraph(const QList<QPointF> &points, const std::optional<CurveFit> &fit);

    PointGrid *m_grid;     // grdInput
    Chart *m_chart;        // chtPolyFit
    QLabel *m_equation;    // lblEquationLabel
    QPushButton *m_accept; // cmdOk; off while there is no equation
    std::optional<CurveFit> m_fit;
};

} // namespace variables
