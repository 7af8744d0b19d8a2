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
constexpr auto GestureGoesOn = 200ms;

bool isGestureRunning() { return QGuiApplication::mouseButtons() != Qt::NoButton; }

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

void Recovery::write()
{
    if (isGestureRunning()) {
        m_timer.start(GestureGoesOn);
        return;
    }
    QElapsedTimer cost;
    cost.start();
    platform::skipFailures([this] { m_files.saveRecovery(); });
    m_pause = std::max(ShortestPause, ShareOfTime * cost.elapsed());
    m_sinceWrite.start();
}

} // namespace shell
