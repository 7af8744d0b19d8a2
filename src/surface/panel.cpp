#include "surface/panel.h"

#include "surface/panel_layout.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace surface {

namespace {

constexpr int EdgeWidth = 4;

Qt::CursorShape pointerOf(Qt::Edges edges)
{
    if (edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge))
        return Qt::SizeFDiagCursor;
    if (edges == (Qt::RightEdge | Qt::TopEdge) || edges == (Qt::LeftEdge | Qt::BottomEdge))
        return Qt::SizeBDiagCursor;
    if (edges & (Qt::LeftEdge | Qt::RightEdge))
        return Qt::SizeHorCursor;
    return edges ? Qt::SizeVerCursor : Qt::ArrowCursor;
}

// The first place that Tab reaches from here on.
QWidget *firstStop(QWidget *from)
{
    while (!(from->focusPolicy() & Qt::TabFocus))
        from = from->nextInFocusChain();
    return from;
}

} // namespace

Panel::Panel(const QString &title, QWidget *content, QWidget *parent)
    : QFrame(parent), m_title(new QLabel(title)), m_content(content)
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setMouseTracking(true);
    setAccessibleName(title);
    m_title->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_title->setTextFormat(Qt::PlainText); // the layout's is the name of its file
    auto *close = new QToolButton;
    for (QWidget *inside : {content, static_cast<QWidget *>(close)})
        inside->setCursor(Qt::ArrowCursor); // not the one of the edges
    close->setAutoRaise(true);
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setIconSize(QSize(12, 12));
    close->setToolTip(QStringLiteral("Close this panel (the View menu brings it back)"));
    close->setAccessibleName(QStringLiteral("Close %1").arg(title));
    close->setFocusPolicy(Qt::TabFocus);
    connect(close, &QToolButton::clicked, this, &Panel::closeRequested);

    auto *bar = new QHBoxLayout;
    bar->setContentsMargins(6, 0, 0, 0);
    bar->addWidget(m_title, 1);
    bar->addWidget(close);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(EdgeWidth, 2, EdgeWidth, EdgeWidth);
    layout->setSpacing(2);
    layout->addLayout(bar);
    layout->addWidget(content, 1);
}

void Panel::takeFocus()
{
    raise();
    QWidget *last = focusWidget();
    const bool isInside = last && m_content->isAncestorOf(last); // and not the button that closes the panel
    (isInside ? last : firstStop(m_content))->setFocus(Qt::ShortcutFocusReason);
}

Qt::Edges Panel::edgesAt(const QPoint &position) const
{
    Qt::Edges edges;
    edges.setFlag(Qt::LeftEdge, position.x() < EdgeWidth);
    edges.setFlag(Qt::RightEdge, position.x() >= width() - EdgeWidth);
    edges.setFlag(Qt::TopEdge, position.y() < EdgeWidth / 2);
    edges.setFlag(Qt::BottomEdge, position.y() >= height() - EdgeWidth);
    return edges;
}

void Panel::mousePressEvent(QMouseEvent *event)
{
    raise();
    if (event->button() != Qt::LeftButton)
        return;
    m_edges = edgesAt(event->position().toPoint());
    m_dragging =
        m_edges || event->position().y() < m_content->y(); // what the content passes on is not a drag
    m_grabbed = event->globalPosition().toPoint();
    m_before = geometry();
}

void Panel::mouseMoveEvent(QMouseEvent *event)
{
    if (m_dragging)
        follow(event->globalPosition().toPoint());
    else
        setCursor(pointerOf(edgesAt(event->position().toPoint())));
}

void Panel::mouseReleaseEvent(QMouseEvent *) { m_dragging = false; }

void Panel::follow(const QPoint &globalPosition)
{
    const QPoint shift = globalPosition - m_grabbed;
    QRect rect = m_before;
    if (!m_edges) {
        rect.translate(shift);
    } else {
        if (m_edges & Qt::LeftEdge)
            rect.setLeft(std::min(rect.left() + shift.x(), rect.right() - SmallestPanel.width()));
        if (m_edges & Qt::RightEdge)
            rect.setRight(std::max(rect.right() + shift.x(), rect.left() + SmallestPanel.width()));
        if (m_edges & Qt::TopEdge)
            rect.setTop(std::min(rect.top() + shift.y(), rect.bottom() - SmallestPanel.height()));
        if (m_edges & Qt::BottomEdge)
            rect.setBottom(std::max(rect.bottom() + shift.y(), rect.top() + SmallestPanel.height()));
    }
    const QRect area(QPoint(), parentWidget()->size());
    setGeometry(m_edges ? rect.intersected(area) : pulledIntoView(rect, area.size()));
    emit arranged();
}

} // namespace surface
