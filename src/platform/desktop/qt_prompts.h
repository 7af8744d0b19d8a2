#pragma once

#include "platform/prompts.h"

#include <QPointer>
#include <QWidget>

namespace platform {

// The prompts of the desktop. Boxes stand over the active window, or over `owner` when there is none.
class QtPrompts final : public Prompts
{
public:
    void setOwner(QWidget *owner) { m_owner = owner; }

    void message(Icon icon, const QString &title, const QString &text) override;
    bool ask(Icon icon, const QString &title, const QString &text) override;
    std::optional<int> choose(const QString &title, const QString &text, const QStringList &options) override;
    QString input(const QString &title, const QString &prompt, const QString &initial) override;
    QString openFile(const FileRequest &request) override;
    QString saveFile(const FileRequest &request) override;
    std::optional<QRgb> colour(QRgb initial) override;
    std::optional<QFont> font(const QFont &initial) override;

private:
    QWidget *parent() const;

    QPointer<QWidget> m_owner;
};

} // namespace platform
