#pragma once

#include "platform/faces.h"

#include <QFont>
#include <QFrame>
#include <QLabel>

namespace surface {

// The small print of the lists in the panels.
inline QFont panelFont() { return {platform::DefaultFace, 8}; }

// A titled frame inside the design window that the user can move by its title, size by its edges and close.
class Panel final : public QFrame
{
    Q_OBJECT

public:
    Panel(const QString &title, QWidget *content, QWidget *parent);

    void setTitle(const QString &title)
    {
        m_title->setText(title);
        setAccessibleName(title);
    }

    // Gives the keyboard focus to what had it last in this panel, at first to its content.
    void takeFocus();

signals:
    void closeRequested();
    void arranged(); // by the user, at every step

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    Qt::Edges edgesAt(const QPoint &position) const;
    void follow(const QPoint &globalPosition);

    QLabel *m_title;
    QWidget *m_content;
    Qt::Edges m_edges; // being dragged; none means that the panel is moved by its title
    bool m_dragging = false;
    QPoint m_grabbed; // global position of the press
    QRect m_before;   // geometry at the press
};

} // namespace surface
