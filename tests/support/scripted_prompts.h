#pragma once

#include "platform/prompts.h"

#include <QVariant>

#include <deque>
#include <vector>

namespace test {

// Prompts that answer from a script. A prompt that was not expected, or an answer that nobody asked for,
// fails the test.
class ScriptedPrompts final : public platform::Prompts
{
public:
    struct Shown
    {
        platform::Icon icon;
        QString title;
        QString text;
    };

    ~ScriptedPrompts() override;

    void expectMessage(const QString &text) { m_script.push_back({Kind::Message, text, {}}); }
    void expectQuestion(const QString &text, bool yes) { m_script.push_back({Kind::Question, text, yes}); }
    void expectConfirm(const QString &text, bool ok) { m_script.push_back({Kind::Confirmation, text, ok}); }
    void expectChoice(std::optional<int> option)
    {
        m_script.push_back({Kind::Choice, {}, option.value_or(-1)});
    }
    void expectInput(const QString &answer) { m_script.push_back({Kind::Input, {}, answer}); }
    void expectOpenFile(const QString &path) { m_script.push_back({Kind::OpenFile, {}, path}); }
    void expectSaveFile(const QString &path) { m_script.push_back({Kind::SaveFile, {}, path}); }
    void expectFont(const QFont &font) { m_script.push_back({Kind::Font, {}, font}); }
    void expectColour(std::optional<QRgb> rgb)
    {
        m_script.push_back({Kind::Colour, {}, rgb ? QVariant(*rgb) : QVariant()});
    }

    // All that was shown so far, in order.
    const std::vector<Shown> &shown() const { return m_shown; }
    const platform::FileRequest &lastFileRequest() const { return m_request; }

    void message(platform::Icon icon, const QString &title, const QString &text) override;
    bool ask(platform::Icon icon, const QString &title, const QString &text) override;
    bool confirm(platform::Icon icon, const QString &title, const QString &text) override;
    std::optional<int> choose(const QString &title, const QString &text, const QStringList &options) override;
    QString input(const QString &title, const QString &prompt, const QString &initial) override;
    QString openFile(const platform::FileRequest &request) override;
    QString saveFile(const platform::FileRequest &request) override;
    std::optional<QRgb> colour(QRgb initial) override;
    std::optional<QFont> font(const QFont &initial) override;

private:
    enum class Kind { Message, Question, Confirmation, Choice, Input, OpenFile, SaveFile, Colour, Font };
    struct Step
    {
        Kind kind;
        QString text; // expected, where the kind has one
        QVariant answer;
    };

    QVariant take(Kind kind, const QString &text);

    std::deque<Step> m_script;
    std::vector<Shown> m_shown;
    platform::FileRequest m_request;
};

} // namespace test
