#include "platform/desktop/busy.h"

#include "platform/desktop/progress_window.h"

#include <QApplication>
#include <QEvent>
#include <QVBoxLayout>

#include <utility>

namespace platform {

ProgressWindow::ProgressWindow(QWidget *parent, const QString &title)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowStaysOnTopHint),
      m_bar(new QProgressBar)
{
    setWindowTitle(title);
    setModal(true);
    m_bar->setAccessibleName(title);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->addWidget(m_bar);
    setMinimumWidth(360);
}

Busy::Busy(QWidget *window, Hourglass hourglass) : m_window(window), m_focus(QApplication::focusWidget())
{
    m_since.start();
    if (hourglass == Hourglass::AtOnce)
        showHourglass();
    if (m_window)
        m_window->installEventFilter(this);
}

Busy::~Busy()
{
    m_progress.reset();
    if (m_hasHourglass)
        QApplication::restoreOverrideCursor();
    if (!m_window)
        return;
    m_window->removeEventFilter(this);
    if (m_isShown) {
        m_window->setEnabled(m_wasEnabled);
        m_window->activateWindow(); // the progress window had the keyboard
        if (m_focus)
            m_focus->setFocus();
    }
    if (m_closeRequested)
        QMetaObject::invokeMethod(m_window.data(), &QWidget::close, Qt::QueuedConnection);
}

void Busy::begin(const QString &title)
{
    m_titles.append(title);
    m_progress.reset();
    setValue(0);
}

void Busy::setValue(int percent)
{
    if (!m_isShown && m_since.elapsed() < Lasts)
        return;
    const bool isNews = !m_progress || percent != m_progress->value();
    if (!m_progress)
        showProgress();
    if (m_progress)
        m_progress->setValue(percent);
    if (isNews) // yielding for every step would cost more than the task
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void Busy::showHourglass()
{
    if (!std::exchange(m_hasHourglass, true))
        QApplication::setOverrideCursor(Qt::WaitCursor);
}

void Busy::showProgress()
{
    showHourglass();
    if (m_titles.isEmpty())
        return;
    if (!m_isShown && m_window) {
        m_wasEnabled = m_window->isEnabled();
        m_window->setEnabled(false);
    }
    m_isShown = true;
    m_progress = std::make_unique<ProgressWindow>(m_window.data(), m_titles.last());
    m_progress->show();
}

void Busy::end()
{
    m_progress.reset();
    m_titles.removeLast();
}

bool Busy::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Close)
        return QObject::eventFilter(watched, event);
    event->ignore();
    m_closeRequested = true;
    return true;
}

} // namespace platform
