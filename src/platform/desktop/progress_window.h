#pragma once

#include <QDialog>
#include <QProgressBar>

namespace platform {

// A title, a bar and no way to close it.
class ProgressWindow final : public QDialog
{
    Q_OBJECT

public:
    ProgressWindow(QWidget *parent, const QString &title);
    int value() const { return m_bar->value(); }
    void setValue(int percent) { m_bar->setValue(percent); }

    void reject() override {} // Escape does not end the task

private:
    QProgressBar *m_bar;
};

} // namespace platform
