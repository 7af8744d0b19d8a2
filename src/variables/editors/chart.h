#pragma once

#include <QList>
#include <QMap>
#include <QPointF>
#include <QRectF>
#include <QWidget>

class QCustomPlot;

namespace variables {

// A small chart of one curve and the points it belongs to, in the colours of the palette.
class Chart final : public QWidget
{
    Q_OBJECT

public:
    Chart(const QString &horizontalTitle, const QString &verticalTitle);

    // Texts at places of the horizontal axis in the place of its numbers.
    void setHorizontalTexts(const QMap<double, QString> &texts);
    // What is drawn; the axes go from the rectangle's left to right and top to bottom value.
    void draw(const QList<QPointF> &points, const QList<QPointF> &curve, const QRectF &range);

    const QList<QPointF> &points() const { return m_points; }
    const QList<QPointF> &curve() const { return m_curve; }
    QRectF range() const; // what the axes show

protected:
    void changeEvent(QEvent *event) override;

private:
    void takeColours();

    QCustomPlot *m_plot;
    QList<QPointF> m_points;
    QList<QPointF> m_curve;
};

} // namespace variables
