#pragma once

#include "surface/canvas_rules.h"

#include <QPixmap>
#include <QWidget>

#include <optional>

namespace surface {

// What a drag from the library carries: the key of the entry.
inline const QString LibraryMime = QStringLiteral("application/x-morvel-library");

// The canvas `pic`: background picture, grid dots, rubber band. It tells in twips what the mouse does on its
// empty parts; the controls are its children.
class Canvas final : public QWidget
{
    Q_OBJECT

public:
    explicit Canvas(QWidget *parent);

    // Sizes the canvas to the rules' standard and draws the background at its top left, with dots if they are
    // to be seen.
    void display(const QPixmap &background, const CanvasRules &rules, bool dots);
    // The background on a canvas of its standard, with and without dots.
    const QPixmap &backdrop() const { return m_backdrop; }
    const QPixmap &picture() const { return m_picture; }

signals:
    void pressed(QPointF twips);
    void rightPressed(QPointF twips, const QPoint &globalPosition);
    void moved(QPointF twips);
    void bandFinished(QPointF startTwips, QPointF endTwips);
    void dropped(const QString &key, QPointF twips);
    void stepped(bool forward); // Tab and Shift+Tab, here or on a control

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    bool focusNextPrevChild(bool forward) override;

private:
    QPointF twips(QPointF pixels) const;
    void setBand(const std::optional<QRect> &band);

    platform::Screen m_screen;
    QPixmap m_picture;
    QPixmap m_backdrop;
    QPoint m_bandStart;
    std::optional<QRect> m_band; // pixels
};

} // namespace surface
