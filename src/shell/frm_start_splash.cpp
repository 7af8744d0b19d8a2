#include "shell/frm_start_splash.h"

#include "graphics/picture_loader.h"
#include "platform/product.h"
#include "shell/version.h"

#include <QBitmap>
#include <QLabel>
#include <QPainter>

namespace shell {

using namespace Qt::StringLiterals;

namespace {

constexpr int Margin = 28; // pixels

const QString Licences =
    u"This program is free software under the GNU General Public License, version 3 or later. It is made "
    "with Qt (LGPL 3), QCustomPlot (GPL 3 or later), FreeType (FreeType License), zlib (zlib License) and "
    "the Liberation fonts (SIL Open Font License 1.1)."_s;

} // namespace

frmStartSplash::frmStartSplash(const platform::Folders &folders, QWidget *owner)
    : QDialog(owner, Qt::SplashScreen | Qt::WindowStaysOnTopHint)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    const QString replacement = folders.program + u"Splash.jpg"_s;
    m_picture = QPixmap::fromImage(graphics::loadPicture(replacement).picture);
    if (m_picture.isNull())
        m_picture.load(u":/splash.png"_s);
    setFixedSize(m_picture.size());
    setMask(QBitmap::fromImage(m_picture.toImage().createAlphaMask()));
    setWindowTitle(owner ? u"About Us"_s : platform::ProductTitle);
    QLabel *version = addLabel(u"VERSION   "_s + programVersion());
    version->move(Margin, height() - 44);
    setAccessibleName(version->text());
    if (owner)
        showLicences(*owner, *version);
}

QLabel *frmStartSplash::addLabel(const QString &text)
{
    auto *label = new QLabel(text, this);
    label->setStyleSheet(u"color: white"_s);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    label->adjustSize();
    return label;
}

void frmStartSplash::showLicences(const QWidget &owner, QLabel &version)
{
    QLabel *licences = addLabel(Licences);
    licences->setObjectName(u"lblLicences"_s);
    licences->setStyleSheet(u"color: white; background: rgba(8, 11, 20, 200)"_s);
    licences->setWordWrap(true);
    licences->setContentsMargins(Margin, 8, Margin, 8);
    licences->setFixedWidth(width());
    licences->adjustSize();
    licences->move(0, height() - licences->height());
    version.move(Margin, licences->y() - version.height() - 8);
    setAccessibleDescription(licences->text());
    move(owner.frameGeometry().center() - rect().center());
}

void frmStartSplash::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black); // shows through along the edge of the picture
    painter.drawPixmap(0, 0, m_picture);
}

void frmStartSplash::mousePressEvent(QMouseEvent *) { accept(); }

} // namespace shell
