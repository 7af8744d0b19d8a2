#include "shell/termination.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QWidget>

#ifdef Q_OS_UNIX
#include <array>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>
#endif

namespace shell {

namespace {

// The desktop tells of an end that may be called off yet: whoever presses a key or a button is still there.
class SessionWatch final : public QObject
{
public:
    SessionWatch(QObject *owner, bool &sessionEnds) : QObject(owner), m_sessionEnds(sessionEnds)
    {
        connect(
            qGuiApp, &QGuiApplication::commitDataRequest, this,
            [this](QSessionManager &) {
                m_sessionEnds = true;
                qGuiApp->installEventFilter(this);
            },
            Qt::DirectConnection);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress) {
            m_sessionEnds = false;
            qGuiApp->removeEventFilter(this);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    bool &m_sessionEnds;
};

} // namespace

#ifdef Q_OS_UNIX
namespace {

// A signal handler may do no more than write to this descriptor.
volatile std::sig_atomic_t signalDescriptor = -1;

void tellEventLoop(int)
{
    const char byte = 1;
    [[maybe_unused]] const auto written = ::write(signalDescriptor, &byte, 1);
}

void closeEverything()
{
    while (QWidget *modal = QApplication::activeModalWidget()) {
        modal->close();
        if (QApplication::activeModalWidget() == modal)
            break; // a long task: the main window puts its closing off until the end
    }
    const QWidgetList all = QApplication::topLevelWidgets();
    for (const QPointer<QWidget> &window : QList<QPointer<QWidget>>(all.begin(), all.end())) {
        if (window && window->isVisible()) // the closing of one may take others along
            window->close();
    }
}

} // namespace

void closeOnTermination(QObject *owner, bool &sessionEnds)
{
    new SessionWatch(owner, sessionEnds);
    std::array<int, 2> pair{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, pair.data()) != 0)
        return;
    signalDescriptor = pair[0];
    auto *notifier = new QSocketNotifier(pair[1], QSocketNotifier::Read, owner);
    QObject::connect(notifier, &QSocketNotifier::activated, owner,
                     [&sessionEnds](QSocketDescriptor descriptor) {
                         char byte = 0;
                         [[maybe_unused]] const auto count = ::read(static_cast<int>(descriptor), &byte, 1);
                         sessionEnds = true;
                         closeEverything();
                     });
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        std::signal(number, &tellEventLoop);
}
#else
void closeOnTermination(QObject *owner, bool &sessionEnds) { new SessionWatch(owner, sessionEnds); }
#endif

} // namespace shell
