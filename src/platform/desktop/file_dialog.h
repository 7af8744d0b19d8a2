#pragma once

#include "platform/prompts.h"

#include <QFileDialog>
#include <QLabel>

namespace platform {

// Qt's own file dialog, with the mounted removable volumes at its side and, where the request brings a
// preview, the picture of the selected file.
class FileDialog final : public QFileDialog
{
    Q_OBJECT

public:
    FileDialog(QWidget *parent, const FileRequest &request, AcceptMode mode);

    // Runs the dialog; empty when it is cancelled.
    QString chosenFile();

private:
    void showWholeColumns();
    void addPreview(const std::function<QImage(const QString &)> &preview);
    void showPreview(const QImage &picture);

    QLabel *m_picture = nullptr;
};

} // namespace platform
