#pragma once

#include "forms/dialog.h"
#include "variables/curve_fit.h"
#include "variables/editors/chart.h"
#include "variables/editors/point_grid.h"

namespace variables {

// The window that turns a calibration table into an equation.
class frmCurveFit final : public forms::Dialog
{
public:
    explicit frmCurveFit(const forms::Context &context);
    ~frmCurveFit() override { hide(); } // takes the focus away while there is a window to tell of it

    // Runs the window. The coefficients of the equation shown, or nothing when the user cancels.
    std::optional<Coefficients> run();

protected:
    void take() override {} // the equation is there already

private:
    void Recalculate();
    void DrawGraph(const QList<QPointF> &points, const std::optional<CurveFit> &fit);

    PointGrid *m_grid;             // grdInput
    Chart *m_chart;                // chtPolyFit
    QLabel *m_equation;            // lblEquationLabel
    std::optional<CurveFit> m_fit; // OK is off while there is none
};

} // namespace variables
