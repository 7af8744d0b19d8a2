#include "variables/editors/chart.h"

#include <QEvent>
#include <QVBoxLayout>
#include <qcustomplot.h>

namespace variables {

namespace {

constexpr int CurveGraph = 0;
constexpr int PointGraph = 1;
constexpr double CurveWidth = 2;
constexpr double MarkerSize = 7;
constexpr int GridAlpha = 70;

void setData(QCPGraph &graph, const QList<QPointF> &values)
{
    graph.data()->clear();
    for (const QPointF &value : values)
        graph.addData(value.x(), value.y());
}

// An axis of no length is widened round its one value.
void setRange(QCPAxis &axis, double from, double to)
{
    if (from == to)
        axis.setRange(from - 1, to + 1);
    else
        axis.setRange(from, to);
}

void colourAxis(QCPAxis &axis, const QColor &text)
{
    QColor grid = text;
    grid.setAlpha(GridAlpha);
    for (const auto setPen : {&QCPAxis::setBasePen, &QCPAxis::setTickPen, &QCPAxis::setSubTickPen})
        (axis.*setPen)(QPen(text));
    axis.setTickLabelColor(text);
    axis.setLabelColor(text);
    axis.grid()->setPen(QPen(grid, 0, Qt::DotLine));
    axis.grid()->setZeroLinePen(QPen(grid));
}

} // namespace

Chart::Chart(const QString &horizontalTitle, const QString &verticalTitle) : m_plot(new QCustomPlot(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_plot);
    m_plot->addGraph();
    m_plot->addGraph();
    m_plot->graph(PointGraph)->setLineStyle(QCPGraph::lsNone);
    m_plot->xAxis->setLabel(horizontalTitle);
    m_plot->yAxis->setLabel(verticalTitle);
    m_plot->axisRect()->setupFullAxesBox();
    for (QCPAxis *axis : {m_plot->xAxis2, m_plot->yAxis2})
        axis->setTicks(false);
    for (QCPAxis *axis : {m_plot->xAxis, m_plot->yAxis}) {
        axis->setLabelFont(font());
        axis->setTickLabelFont(font());
    }
    takeColours();
}

void Chart::setHorizontalTexts(const QMap<double, QString> &texts)
{
    const QSharedPointer<QCPAxisTickerText> ticker(new QCPAxisTickerText);
    ticker->setTicks(texts);
    m_plot->xAxis->setTicker(ticker);
}

void Chart::draw(const QList<QPointF> &points, const QList<QPointF> &curve, const QRectF &range)
{
    m_points = points;
    m_curve = curve;
    setData(*m_plot->graph(CurveGraph), curve);
    setData(*m_plot->graph(PointGraph), points);
    setRange(*m_plot->xAxis, range.left(), range.right());
    setRange(*m_plot->yAxis, range.top(), range.bottom());
    // A little room, so that nothing is drawn on the frame.
    for (QCPAxis *axis : {m_plot->xAxis, m_plot->yAxis})
        axis->scaleRange(1.06);
    m_plot->replot();
}

QRectF Chart::range() const
{
    const QCPRange x = m_plot->xAxis->range();
    const QCPRange y = m_plot->yAxis->range();
    return {x.lower, y.lower, x.size(), y.size()};
}

void Chart::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        takeColours();
}

void Chart::takeColours()
{
    const QColor text = palette().color(QPalette::WindowText);
    const QColor accent = palette().color(QPalette::Link);
    m_plot->setBackground(palette().brush(QPalette::Base));
    for (QCPAxis *axis : {m_plot->xAxis, m_plot->yAxis, m_plot->xAxis2, m_plot->yAxis2})
        colourAxis(*axis, text);
    m_plot->graph(CurveGraph)->setPen(QPen(accent, CurveWidth));
    m_plot->graph(PointGraph)
        ->setScatterStyle(
            QCPScatterStyle(QCPScatterStyle::ssCircle, QPen(text), palette().base(), MarkerSize));
    m_plot->replot(QCustomPlot::rpQueuedReplot);
}

} // namespace variables
