#include "shell/elided_label.h"

#include <QPainter>

namespace shell {

void ElidedLabel::setText(const QString &text)
{
    m_text = text;
    setAccessibleName(text);
    update();
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect room = contentsRect();
    painter.drawText(room, Qt::AlignVCenter, fontMetrics().elidedText(m_text, Qt::ElideRight, room.width()));
}

} // namespace shell
