#pragma once

#include "platform/progress.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>

namespace platform {

class ProgressWindow;

// The scope of a task: hourglass, no user input, a request to close put off until the end. A task that lasts
// gets a progress window on top and the window shown disabled, and from then on paints and timers are served
// between its steps; one that is over before anybody could read it shows nothing. Every way out restores all
// of it.
class Busy final : public QObject, public Progress
{
    Q_OBJECT

public:
    // A task that nobody asked for has its hourglass with the progress window.
    enum class Hourglass { AtOnce, WhenItLasts };

    explicit Busy(QWidget *window, Hourglass hourglass = Hourglass::AtOnce);
    ~Busy() override;

    void begin(const QString &title) override;
    void setValue(int percent) override;
    void end() override;

    // Milliseconds after which a task counts as lasting.
    static constexpr qint64 Lasts = 300;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showHourglass();
    void showProgress();

    QPointer<QWidget> m_window;
    QPointer<QWidget> m_focus;
    std::unique_ptr<ProgressWindow> m_progress;
    QStringList m_titles; // of the steps that run, one within the other
    QElapsedTimer m_since;
    bool m_hasHourglass = false;
    bool m_isShown = false;
    bool m_wasEnabled = true;
    bool m_closeRequested = false;
};

} // namespace platform
