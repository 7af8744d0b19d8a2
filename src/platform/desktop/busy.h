#pragma once

#include "platform/progress.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>

namespace platform {

class ProgressWindow;

// The scope of a long task: hourglass, the main window disabled, a progress window on top, paints and timers
// served but no user input, a request to close put off until the end. Every way out restores all of it.
class Busy final : public QObject, public Progress
{
    Q_OBJECT

public:
    explicit Busy(QWidget *window);
    ~Busy() override;

    void begin(const QString &title) override;
    void setValue(int percent) override;
    void end() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QPointer<QWidget> m_window;
    QPointer<QWidget> m_focus;
    std::unique_ptr<ProgressWindow> m_progress;
    bool m_wasEnabled = true;
    bool m_closeRequested = false;
};

} // namespace platform
