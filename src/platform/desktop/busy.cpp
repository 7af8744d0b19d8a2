#include "platform/desktop/busy.h"

#include "platform/desktop/progress_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QVBoxLayout>

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

Busy::Busy(QWidget *window) : m_window(window), m_focus(QApplication::focusWidget())
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    if (!m_window)
        return;
    m_wasEnabled = m_window->isEnabled();
    m_window->installEventFilter(this);
    m_window->setEnabled(false);
}

Busy::~Busy()
{
    m_progress.reset();
    QApplication::restoreOverrideCursor();
    if (!m_window)
        return;
    m_window->removeEventFilter(this);
    m_window->setEnabled(m_wasEnabled);
    m_window->activateWindow(); // the progress window had the keyboard
    if (m_focus)
        m_focus->setFocus();
    if (m_closeRequested)
        QMetaObject::invokeMethod(m_window.data(), &QWidget::close, Qt::QueuedConnection);
}

void Busy::begin(const QString &title)
{
    m_progress = std::make_unique<ProgressWindow>(m_window.data(), title);
    m_progress->show();
    m_progress->setValue(0);
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void Busy::setValue(int percent)
{
    if (m_progress) {
        if (percent == m_progress->value())
            return; // nothing to show: yielding for every step would cost more than the task
        m_progress->setValue(percent);
    }
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void Busy::end() { m_progress.reset(); }

bool Busy::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Close)
        return QObject::eventFilter(watched, event);
    event->ignore();
    m_closeRequested = true;
    return true;
}

} // namespace platform
