#pragma once

#include "surface/canvas_picture.h"
#include "surface/control_registry.h"
#include "surface/gesture.h"
#include "surface/selection.h"

#include <QWidget>

class QHelpEvent;

namespace surface {

// What a drag from the library carries: the key of the entry.
inline const QString LibraryMime = QStringLiteral("application/x-morvel-library");
// What a variable's drag carries: its catalogue index as decimal text.
inline const QString VariableMime = QStringLiteral("application/x-morvel-variable");

// The canvas `pic`: the one widget that shows background, grid, controls, frames and rubber band, and that
// turns mouse and keys into what the contract of the controls says. It holds the current control, the one
// that the keys act on. Points are canvas pixels or twips, as their names say.
class Canvas final : public QWidget
{
    Q_OBJECT

public:
    Canvas();

    // Sizes the canvas to the rules' standard and draws everything anew, with the dots of the grid if they
    // are to be seen.
    void display(const QImage &background, const CanvasRules &rules, bool dots);
    // In play mode the canvas shows the overlay as the recorder draws it and takes neither mouse nor keys.
    // To be displayed anew.
    void setPlayMode(bool playMode);
    bool isPlayMode() const { return m_isPlayMode; }
    void setZoom(int percent);
    const Zoom &zoom() const { return m_zoom; }
    QSize canvasSize() const { return m_ground.size(); }
    // The overlay of the picture's safe areas; not in play mode.
    void setSafeAreas(bool shown);
    bool showsSafeAreas() const { return m_showsSafeAreas; }
    // The overlay in the order of the layout, without frames and grid.
    QImage preview() const { return overlayPicture(m_ground, m_controls.controls()); }

    // Null when it is gone or the choice was taken back.
    controls::OverlayControl *current() const { return m_selection.current(); }
    // Makes it the current control, raised and, unless it is in the group, marked alone.
    void choose(controls::OverlayControl &control);
    // A choice that is not seen any more would be nudged and deleted unseen.
    void chooseNone();
    bool hasGroup() const { return m_selection.hasGroup(); }
    // Shows a control that was loaded, above all others.
    void showControl(controls::OverlayControl &control);
    // Afterwards no control is current.
    void unload(controls::OverlayControl &control);
    void clear();
    // Something within `area` (pixels) of the control looks different.
    void redrawControl(const controls::OverlayControl &control, const QRect &area);
    // Acts on the current control as the key does.
    void pressKey(Qt::Key key);
    void showPosition(const controls::OverlayControl &control);

    ControlRegistry &registry() { return m_controls; }

signals:
    void pressed(QPointF twips); // where a paste goes: on an empty place, or for a menu
    void dropped(const QString &key, QPointF twips);
    void tracked(QPoint pixel); // a gesture is there
    void positionShown(const QString &text);
    void currentShown(const QString &text); // family, variable and place; empty when none is current
    void controlMenuRequested(const QPoint &globalPosition); // of the current control
    void groupMenuRequested(const QPoint &globalPosition);
    void canvasMenuRequested(const QPoint &globalPosition);
    void designChanged();
    void selectionChanged();
    void stepped(bool forward); // Tab and Shift+Tab

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    bool focusNextPrevChild(bool forward) override;
    // The canvas looks the same with and without the keyboard focus: nothing is painted again.
    void focusInEvent(QFocusEvent *) override {}
    void focusOutEvent(QFocusEvent *) override {}
    bool event(QEvent *event) override;

private:
    QPointF twips(QPointF pixels) const;
    controls::OverlayControl *controlAt(QPointF pixels) const;
    std::optional<controls::Handle> handleAt(const controls::OverlayControl &control, QPointF pixels) const;
    void updateShown(const QRect &area);
    void tellCurrent();
    bool mouseEvent(QMouseEvent &event);
    void showToolTip(const QHelpEvent &event);

    void pressControl(controls::OverlayControl &control, const QMouseEvent &event);
    // Where no grip is, a drag begins only if `drags`.
    void startGesture(controls::OverlayControl &control, QPointF pixels, bool drags);
    // What is dragged along with the control.
    GroupDrag ResetControlGroup(const controls::OverlayControl &control) const;
    void BringToFront(controls::OverlayControl &control);
    void pressEmpty(const QMouseEvent &event);
    void showMenu(const controls::OverlayControl &control, const QPoint &globalPosition);
    void showCanvasMenu(QPointF twips, const QPoint &globalPosition);
    void hover(QPointF pixels);
    void track(QPointF twips);
    void lift();
    void endGesture();
    void escape();
    void selectAll();
    void selectBand(QPointF start, QPointF end);
    void setBand(const std::optional<QRect> &band);
    bool applyKey(int key, int step = 1);
    bool takesDrop(const QDropEvent &event) const;
    void paintBand(QPainter &painter) const;

    ControlRegistry m_controls;
    CanvasRules m_rules;
    Zoom m_zoom;
    QImage m_ground; // background without dots
    CanvasPicture m_picture;
    Selection m_selection;
    Gesture m_gesture;
    ControlList m_lifted;        // by the gesture, above all others
    QRect m_liftedArea;          // pixels, to be painted again
    std::optional<QRect> m_band; // pixels
    bool m_isPlayMode = false;
    bool m_showsSafeAreas = false;
    QString m_currentText; // as it was told last
};

} // namespace surface
