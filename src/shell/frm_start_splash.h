#pragma once

#include "platform/folders.h"

#include <QDialog>

class QLabel;

namespace shell {

// The splash picture with the version, as a window of the picture's outline; a press closes it. With an owner
// it is the "About Us" window, which names the licences, too.
class frmStartSplash final : public QDialog
{
    Q_OBJECT

public:
    frmStartSplash(const platform::Folders &folders, QWidget *owner);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QLabel *addLabel(const QString &text);
    // Moves the version out of their way.
    void showLicences(const QWidget &owner, QLabel &version);

    QPixmap m_picture;
};

} // namespace shell
