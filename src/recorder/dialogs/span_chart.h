#pragma once

#include <QList>
#include <QWidget>

namespace recorder {

// One bar of a chart: where it begins and ends, the caption before it and the text after it.
struct Span
{
    QString caption;
    double from = 0;
    double to = 0;
    QString text;
};

// A small chart of horizontal bars below each other on one scale from 0 to the furthest end, in the colours
// of the palette. Bars that end before they begin are not drawn.
class SpanChart final : public QWidget
{
public:
    // `rows` is how many bars there may be.
    SpanChart(const char *name, const QString &title, int rows);

    // `end` is where the scale ends.
    void draw(const QList<Span> &spans, double end);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int lineHeight() const;

    QString m_title;
    int m_rows;
    QList<Span> m_spans;
    double m_end = 0;
};

} // namespace recorder
