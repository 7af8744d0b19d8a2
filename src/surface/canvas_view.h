#pragma once

#include <QScrollArea>

namespace surface {

class Canvas;

// The view upon the canvas inside the design panel: how large it is shown, and which part of it.
class CanvasView final : public QScrollArea
{
    Q_OBJECT

public:
    explicit CanvasView(Canvas &canvas);

    int zoom() const; // per cent
    // From here on it no longer follows the panel.
    void setZoom(int percent);
    void stepZoom(bool larger);
    // As large as fits the panel, from now on.
    void setFitting(bool fitting);
    bool isFitting() const { return m_isFitting; }
    // Scrolls as little as brings this part of the canvas (pixels) into view.
    void reveal(const QRect &area);

signals:
    void zoomChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;
    // With Ctrl it zooms; the point under the pointer stays.
    void wheelEvent(QWheelEvent *event) override;

private:
    void zoomAround(int percent, QPointF kept);
    void fit();

    Canvas &m_canvas;
    bool m_isFitting = false;
    int m_turned = 0; // of the wheel with Ctrl, since the last step
};

} // namespace surface
