// One step of a drag with 200 and with 4,000 controls on the canvas: a movement of the mouse and the repaint
// that follows. Limits: 1.2 times the peer, which drags a bare widget among as many of the same sizes over a
// picture of the same size; 4 ms.

#include "bench_support.h"
#include "surface/canvas.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

namespace {

using bench::dragTo;
using bench::Program;
using bench::startDrag;
using bench::Times;
using controls::ControlType;

constexpr int Few = 200;
constexpr int Many = 4000;
constexpr double MostOfPeer = 1.2;
constexpr double LimitMs = 4;

class BareWidget final : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void mousePressEvent(QMouseEvent *event) override { m_grip = event->position().toPoint(); }
    void mouseMoveEvent(QMouseEvent *event) override
    {
        move(mapToParent(event->position().toPoint()) - m_grip);
    }
    void paintEvent(QPaintEvent *) override { QPainter(this).fillRect(rect(), Qt::darkBlue); }

private:
    QPoint m_grip;
};

class BareCanvas final : public QWidget
{
public:
    // A bare widget for each control of `model`.
    BareCanvas(const QPixmap &picture, const QList<controls::OverlayControl *> &model) : m_picture(picture)
    {
        setAttribute(Qt::WA_OpaquePaintEvent);
        setFixedSize(picture.size());
        for (const controls::OverlayControl *control : model) {
            auto *widget = new BareWidget(this);
            widget->setAttribute(Qt::WA_OpaquePaintEvent);
            widget->setGeometry(control->outerRect());
        }
        bench::showExposed(*this);
        QApplication::processEvents();
    }

    QWidget &widget(qsizetype index) { return *qobject_cast<QWidget *>(children()[index]); }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QPainter(this).drawPixmap(event->rect(), m_picture, event->rect());
    }

private:
    QPixmap m_picture;
};

void dragStep(benchmark::State &state, ControlType family)
{
    Program program;
    program.addControls(static_cast<int>(state.range(0)));
    const auto &all = program.design().controls();
    auto &canvas = *program.design().findChild<surface::Canvas *>();
    BareCanvas bare(QPixmap::fromImage(program.design().renderPreview()), all);
    const qsizetype dragged = all[0]->family().type == family ? 0 : 1;
    QWidget &peer = bare.widget(dragged);
    bench::PaintCounter counter(canvas);
    canvas.choose(*all[dragged]);
    peer.raise();
    startDrag(canvas, canvas, all[dragged]->outerRect().topLeft());
    startDrag(peer, bare, peer.pos());

    Times ownTimes;
    Times peerTimes;
    int step = 0;
    while (state.KeepRunning()) {
        const QPoint place = bench::wayPoint(++step);
        state.SetIterationTime(ownTimes.measure([&] { dragTo(canvas, canvas, place); }));
        peerTimes.measure([&] { dragTo(peer, bare, place); });
    }
    counter.expect(step, state);
    const bool isFew = state.range(0) == Few;
    bench::stateLimit(state, ownTimes, isFew ? MostOfPeer * peerTimes.median() * 1e3 : LimitMs);
    bench::statePeer(state, ownTimes, peerTimes);
}

void counts(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Arg(Few)->Arg(Many)->UseManualTime()->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(dragStep, gauge, ControlType::Gauge)->Apply(counts);
BENCHMARK_CAPTURE(dragStep, barGraph, ControlType::BarGraph)->Apply(counts);

} // namespace
