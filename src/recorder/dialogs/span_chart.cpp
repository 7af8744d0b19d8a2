#include "recorder/dialogs/span_chart.h"

#include <QPainter>

#include <algorithm>

namespace recorder {

namespace {

// Pixels.
constexpr int Width = 360;
constexpr int Gap = 8;
constexpr int Padding = 6; // of a line, above and below its bar

int widest(const QFontMetrics &metrics, const QList<Span> &spans, QString Span::*text)
{
    int width = 0;
    for (const Span &span : spans)
        width = std::max(width, metrics.horizontalAdvance(span.*text));
    return width;
}

} // namespace

SpanChart::SpanChart(const char *name, const QString &title, int rows) : m_title(title), m_rows(rows)
{
    setObjectName(QLatin1String(name));
    setAccessibleName(title);
    setMinimumSize(sizeHint());
}

void SpanChart::draw(const QList<Span> &spans, double end)
{
    m_spans = spans;
    m_end = end;
    QStringList texts;
    for (const Span &span : m_spans)
        texts.append(span.caption + QLatin1Char(' ') + span.text);
    setAccessibleDescription(texts.join(QLatin1String(", ")));
    update();
}

int SpanChart::lineHeight() const { return fontMetrics().height() + 2 * Padding; }

QSize SpanChart::sizeHint() const { return {Width, lineHeight() * (m_rows + 1)}; }

void SpanChart::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QRect line(0, 0, width(), lineHeight());
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, m_title);
    const int captions = widest(fontMetrics(), m_spans, &Span::caption);
    const int left = captions + Gap;
    const int room = width() - left - Gap - widest(fontMetrics(), m_spans, &Span::text);
    for (const Span &span : m_spans) {
        line.translate(0, lineHeight());
        painter.drawText(line.x(), line.y(), captions, line.height(), Qt::AlignRight | Qt::AlignVCenter,
                         span.caption);
        painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, span.text);
        const QRect track(left, line.y() + Padding, room, line.height() - 2 * Padding);
        painter.fillRect(track, palette().alternateBase());
        if (span.to > span.from) {
            const double scale = track.width() / m_end;
            const QRectF bar(track.x() + span.from * scale, track.y(), (span.to - span.from) * scale,
                             track.height());
            painter.fillRect(bar & QRectF(track), palette().link());
        }
    }
}

} // namespace recorder
