#pragma once

#include "platform/folders.h"

#include <QDialog>

namespace shell {

// The splash picture with the version; a press closes it. Also the "About Us" window.
class frmStartSplash final : public QDialog
{
    Q_OBJECT

public:
    frmStartSplash(const platform::Folders &folders, QWidget *owner);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap m_picture;
};

} // namespace shell
