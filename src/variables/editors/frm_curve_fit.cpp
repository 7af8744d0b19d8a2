#include "variables/editors/frm_curve_fit.h"

#include "platform/guards.h"

#include <algorithm>

namespace variables {

using namespace Qt::StringLiterals;

namespace {

const QString InputCaption = u"Input X (Volts)"_s;
const QString OutputCaption = u"Output Y"_s;
constexpr int GridRows = 30;
constexpr int CurveSteps = 201;
constexpr int GridWidth = 260; // pixels

QRectF rangeOf(const QList<QPointF> &points)
{
    if (points.isEmpty())
        return {0, 0, 1, 1};
    const auto [left, right] = std::minmax_element(
        points.begin(), points.end(), [](const QPointF &a, const QPointF &b) { return a.x() < b.x(); });
    const auto [bottom, top] = std::minmax_element(
        points.begin(), points.end(), [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); });
    return {left->x(), bottom->y(), right->x() - left->x(), top->y() - bottom->y()};
}

} // namespace

frmCurveFit::frmCurveFit(const forms::Context &context)
    : Dialog(u"Generate an equation from a table"_s, context),
      m_grid(new PointGrid(GridRows, {InputCaption, OutputCaption}, decimalMark())),
      m_chart(new Chart(InputCaption, OutputCaption)), m_equation(new QLabel)
{
    makeResizable();
    m_grid->setObjectName(u"grdInput"_s);
    m_grid->setAccessibleName(u"Table of inputs and outputs"_s);
    m_grid->setFixedWidth(GridWidth);
    m_chart->setObjectName(u"chtPolyFit"_s);
    m_chart->setAccessibleName(u"Chart of table and curve"_s);
    m_chart->setMinimumSize(480, 360);
    m_equation->setObjectName(u"lblEquationLabel"_s);
    m_equation->setTextFormat(Qt::PlainText);
    m_equation->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto *tableCaption = new QLabel(u"&Table"_s);
    tableCaption->setBuddy(m_grid);
    body().addWidget(tableCaption);
    body().addWidget(m_grid);
    addBeside(m_chart);
    layout()->addWidget(m_equation);
    addButtons(forms::okAndCancel());
    connect(m_grid, &PointGrid::changed, this, &frmCurveFit::Recalculate);
    Recalculate();
    m_grid->setFocus();
}

std::optional<Coefficients> frmCurveFit::run()
{
    if (exec() != Accepted)
        return std::nullopt;
    return m_fit->coefficients;
}

void frmCurveFit::Recalculate()
{
    QList<QPointF> points;
    QString text = u"No curve can be calculated from this table"_s;
    m_fit.reset();
    platform::skipFailures([&] {
        points = fitPoints(m_grid->cells());
        if (const auto complaint = fitComplaint(points, fitDegree(points.size()))) {
            text = *complaint;
            return;
        }
        m_fit = fitCurve(points);
        text = fitText(*m_fit);
    });
    m_equation->setText(text);
    button("cmdOk").setEnabled(m_fit.has_value());
    DrawGraph(points, m_fit);
}

void frmCurveFit::DrawGraph(const QList<QPointF> &points, const std::optional<CurveFit> &fit)
{
    const QRectF range = rangeOf(points);
    QList<QPointF> curve;
    if (fit)
        curve = curveSamples(fit->coefficients, range.left(), range.right(), CurveSteps);
    m_chart->draw(points, curve, rangeOf(points + curve)); // between two points it may go beyond them
}

} // namespace variables
