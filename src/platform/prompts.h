#pragma once

#include "platform/product.h"

#include <QFont>
#include <QImage>
#include <QRgb>
#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

namespace platform {

enum class Icon { None, Information, Question, Warning, Critical };

// A file dialog. `filter` is caption and pattern with a bar between them: "VGL files|*.VGL".
struct FileRequest
{
    QString title;
    QString folder; // where the dialog begins; empty for where the last such one ended
    QString filter;
    QString fileName;                               // proposed name, for saving
    std::function<QImage(const QString &)> preview; // picture of the selected file, for opening; may be empty
};

// The only way to a message box, a question, an input box, a file, colour or font dialog, all modal, and to
// what the desktop shows pages with.
class Prompts
{
public:
    virtual ~Prompts() = default;

    virtual void message(Icon icon, const QString &title, const QString &text) = 0;
    // Yes is true; No and a closed box are false.
    virtual bool ask(Icon icon, const QString &title, const QString &text) = 0;
    // OK is true; Cancel and a closed box are false.
    virtual bool confirm(Icon icon, const QString &title, const QString &text) = 0;
    // One of `options` by number, or nothing when the user cancels.
    virtual std::optional<int> choose(const QString &title, const QString &text,
                                      const QStringList &options) = 0;
    // Empty when the user cancels.
    virtual QString input(const QString &title, const QString &prompt, const QString &initial) = 0;
    virtual QString openFile(const FileRequest &request) = 0;
    virtual QString saveFile(const FileRequest &request) = 0;
    // Nothing when the user cancels.
    virtual std::optional<QRgb> colour(QRgb initial) = 0;
    virtual std::optional<QFont> font(const QFont &initial) = 0;
    // In a window of another program. Throws RunTimeError that says why there is none.
    virtual void showPage(const QUrl &page) = 0;
};

// For what runs while nobody is there: shows nothing and takes every question for declined.
class SilentPrompts : public Prompts
{
public:
    void message(Icon, const QString &, const QString &) override {}
    bool ask(Icon, const QString &, const QString &) override { return false; }
    bool confirm(Icon, const QString &, const QString &) override { return false; }
    std::optional<int> choose(const QString &, const QString &, const QStringList &) override { return {}; }
    QString input(const QString &, const QString &, const QString &) override { return {}; }
    QString openFile(const FileRequest &) override { return {}; }
    QString saveFile(const FileRequest &) override { return {}; }
    std::optional<QRgb> colour(QRgb) override { return {}; }
    std::optional<QFont> font(const QFont &) override { return {}; }
    void showPage(const QUrl &) override {}
};

} // namespace platform
