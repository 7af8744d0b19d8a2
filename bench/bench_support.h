#pragma once

#include "shell/frm_main.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <functional>
#include <memory>
#include <vector>

namespace bench {

// Says yes to everything and saves under one path.
class YesPrompts final : public platform::SilentPrompts
{
public:
    explicit YesPrompts(const QString &savePath) : m_savePath(savePath) {}

    void message(platform::Icon, const QString &, const QString &text) override;
    bool ask(platform::Icon, const QString &, const QString &) override { return true; }
    bool confirm(platform::Icon, const QString &, const QString &) override { return true; }
    std::optional<int> choose(const QString &, const QString &, const QStringList &) override { return 0; }
    QString saveFile(const platform::FileRequest &) override { return m_savePath; }

private:
    QString m_savePath;
};

// Off-screen unless the environment names another platform, and without what that platform has to remark.
void choosePlatform();

// Folders in `root` that hold a new user's data, as a first start leaves it.
platform::Folders seededFolders(const QTemporaryDir &root);

// Shows a window and waits until it is painted on: a real display takes its time.
void showExposed(QWidget &window);

// The program as it stands after a first start, its window shown.
class Program
{
public:
    Program();

    surface::frmInterface &design() { return m_window->design(); }
    shell::FileCommands &files() { return m_window->files(); }
    // Where its Save command writes.
    QString savePath() const { return m_root.filePath(QStringLiteral("SAVED.VGL")); }

    // Gauges and bar graphs in turn, all over the canvas.
    void addControls(int count);
    // The fonts that the other one has made.
    void takeFonts(const Program &from) const;

private:
    QTemporaryDir m_root;
    YesPrompts m_prompts{savePath()};
    shell::ProgramState m_state;
    std::unique_ptr<shell::frmMain> m_window;
};

// What one task took each time.
class Times
{
public:
    // Seconds that the task takes.
    template <typename Task>
    static double timed(Task task)
    {
        QElapsedTimer timer;
        timer.start();
        task();
        return static_cast<double>(timer.nsecsElapsed()) * 1e-9;
    }
    template <typename Task>
    double measure(Task task)
    {
        add(timed(task));
        return m_seconds.back();
    }
    void add(double value) { m_seconds.push_back(value); }
    // Seconds. The best one is what the task takes when the machine has nothing else to do.
    double median() const;
    double best() const;

private:
    std::vector<double> m_seconds;
};

// A way to and fro over the canvas in steps of 8 and 6 pixels.
QPoint wayPoint(int step);

// Presses what stands at `place`, a pixel of the canvas, and takes it out of the dead zone. The canvas is
// `widget` or its parent.
void startDrag(QWidget &widget, const QWidget &canvas, QPoint place);
// One step of that drag, painted.
void dragTo(QWidget &widget, const QWidget &canvas, QPoint place);

// Counts how often a widget is painted.
class PaintCounter final : public QObject
{
public:
    explicit PaintCounter(QWidget &widget) { widget.installEventFilter(this); }
    // Fails the benchmark unless each step was painted.
    void expect(int steps, benchmark::State &state) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int m_paints = 0;
};

// What a task and its peer took, in turn.
struct Comparison
{
    Times own;
    Times peer;
};

// Saves the design again and again; `peer` is to do its part with the same bytes.
Comparison measureSaves(benchmark::State &state, Program &program,
                        const std::function<void(const QByteArray &)> &peer);

// Loads what `writer` saves into one fresh program after the other, which have its fonts, until it is
// painted.
Comparison measureLoads(benchmark::State &state, Program &writer, const std::function<void()> &peer);

// Puts the limit beside the benchmark's time; the label says whether the median keeps it.
void stateLimit(benchmark::State &state, const Times &own, double milliseconds);

// Puts the peer's median and the ratio to it beside the benchmark's time.
void statePeer(benchmark::State &state, const Times &own, const Times &peer);

} // namespace bench
