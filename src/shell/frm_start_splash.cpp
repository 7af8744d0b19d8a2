#include "shell/frm_start_splash.h"

#include "shell/version.h"

#include <QLabel>
#include <QPainter>

namespace shell {

frmStartSplash::frmStartSplash(const platform::Folders &folders, QWidget *owner)
    : QDialog(owner, Qt::SplashScreen | Qt::WindowStaysOnTopHint)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    const QString replacement = folders.program + QStringLiteral("Splash.jpg");
    if (!platform::FileExists(replacement) || !m_picture.load(replacement))
        m_picture.load(QStringLiteral(":/splash.jpg"));
    setFixedSize(m_picture.size());
    auto *version = new QLabel(QStringLiteral("VERSION   ") + programVersion(), this);
    version->setStyleSheet(QStringLiteral("color: white"));
    version->move(28, height() - 44);
    version->resize(240, 24);
    version->setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleName(version->text());
    if (owner)
        move(owner->frameGeometry().center() - rect().center());
}

void frmStartSplash::paintEvent(QPaintEvent *) { QPainter(this).drawPixmap(0, 0, m_picture); }

void frmStartSplash::mousePressEvent(QMouseEvent *) { accept(); }

} // namespace shell
