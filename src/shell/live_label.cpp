#include "shell/live_label.h"

#include <QPainter>

namespace shell {

namespace {

constexpr int Moment = 16; // milliseconds: a picture of the screen

}

void LiveLabel::setText(const QString &text)
{
    m_text = text;
    if (!m_moment.isActive())
        showText();
}

void LiveLabel::fix(const QString &text)
{
    setFixedSize(fontMetrics().size(Qt::TextSingleLine, text).grownBy(contentsMargins()));
}

void LiveLabel::showText()
{
    if (m_text == accessibleName())
        return;
    setAccessibleName(m_text);
    update();
    m_moment.start(Moment, this);
}

void LiveLabel::timerEvent(QTimerEvent *)
{
    m_moment.stop();
    showText();
}

void LiveLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect room = contentsRect();
    // And not the text: one that was not its turn yet would stay if the one before it came back.
    const QString shown = fontMetrics().elidedText(accessibleName(), Qt::ElideRight, room.width());
    painter.drawText(room, Qt::AlignVCenter, shown);
}

} // namespace shell
