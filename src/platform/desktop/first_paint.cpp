#include "platform/desktop/first_paint.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace platform {

namespace {

class FirstPaint final : public QObject
{
public:
    FirstPaint(QWidget &window, const std::function<void()> &task) : QObject(&window), m_task(task)
    {
        window.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *window, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            QTimer::singleShot(0, window, m_task);
            window->removeEventFilter(this);
            deleteLater();
        }
        return false;
    }

private:
    std::function<void()> m_task;
};

} // namespace

void afterFirstPaint(QWidget &window, const std::function<void()> &task) { new FirstPaint(window, task); }

} // namespace platform
