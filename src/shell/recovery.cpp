#include "shell/recovery.h"

#include "platform/guards.h"

#include <QGuiApplication>

#include <algorithm>
#include <chrono>

namespace shell {

namespace {

using namespace std::chrono_literals;

constexpr qint64 ShortestPause = 1000; // milliseconds
constexpr qint64 ShareOfTime = 10;     // one part in so many
constexpr auto ChangeGoesOn = 200ms;

// In the middle of a gesture or under the hourglass the design is no whole.
bool isChanging()
{
    return QGuiApplication::mouseButtons() != Qt::NoButton || QGuiApplication::overrideCursor();
}

} // namespace

Recovery::Recovery(FileCommands &files) : m_files(files)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Recovery::write);
}

void Recovery::noteChange()
{
    if (!m_begun || m_timer.isActive())
        return;
    const qint64 rested = m_sinceWrite.isValid() ? m_sinceWrite.elapsed() : m_pause;
    m_timer.start(static_cast<int>(std::max<qint64>(m_pause - rested, 0)));
}

void Recovery::end(bool designIsSafe)
{
    m_timer.stop();
    if (m_begun && designIsSafe)
        m_files.removeRecovery();
    m_begun = false;
}

void Recovery::write()
{
    if (isChanging()) {
        m_timer.start(ChangeGoesOn);
        return;
    }
    QElapsedTimer cost;
    cost.start();
    platform::skipFailures([this] { m_files.saveRecovery(); });
    m_pause = std::max(ShortestPause, ShareOfTime * cost.elapsed());
    m_sinceWrite.start();
}

} // namespace shell
