#pragma once

#include "platform/prompts.h"

#include <QHash>

namespace platform {

// The prompts of the desktop. Boxes stand over the active window, or over the main window when there is none.
class QtPrompts final : public Prompts
{
public:
    void message(Icon icon, const QString &title, const QString &text) override;
    bool ask(Icon icon, const QString &title, const QString &text) override;
    bool confirm(Icon icon, const QString &title, const QString &text) override;
    std::optional<int> choose(const QString &title, const QString &text, const QStringList &options) override;
    QString input(const QString &title, const QString &prompt, const QString &initial) override;
    QString openFile(const FileRequest &request) override;
    QString saveFile(const FileRequest &request) override;
    std::optional<QRgb> colour(QRgb initial) override;
    std::optional<QFont> font(const QFont &initial) override;
    void showPage(const QUrl &page) override;

private:
    // By filter: of the last file that was opened by a request without a folder.
    QHash<QString, QString> m_lastFolders;
};

} // namespace platform
