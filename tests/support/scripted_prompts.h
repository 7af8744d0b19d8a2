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
        m_script.push_back({Kind::Choice, {}, option ? QVariant(*option) : QVariant()});
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

    void message(platform::Icon icon, const QString &title, const QString &text) override
    {
        show(Kind::Message, {icon, title, text});
    }
    bool ask(platform::Icon icon, const QString &title, const QString &text) override
    {
        return show(Kind::Question, {icon, title, text}).toBool();
    }
    bool confirm(platform::Icon icon, const QString &title, const QString &text) override
    {
        return show(Kind::Confirmation, {icon, title, text}).toBool();
    }
    std::optional<int> choose(const QString &title, const QString &text, const QStringList &) override
    {
        return chosen<int>(show(Kind::Choice, {platform::Icon::None, title, text}));
    }
    QString input(const QString &title, const QString &text, const QString &) override
    {
        return show(Kind::Input, {platform::Icon::None, title, text}).toString();
    }
    QString openFile(const platform::FileRequest &request) override { return pick(Kind::OpenFile, request); }
    QString saveFile(const platform::FileRequest &request) override { return pick(Kind::SaveFile, request); }
    std::optional<QRgb> colour(QRgb) override { return chosen<QRgb>(take(Kind::Colour, {})); }
    std::optional<QFont> font(const QFont &) override { return chosen<QFont>(take(Kind::Font, {})); }

private:
    enum class Kind { Message, Question, Confirmation, Choice, Input, OpenFile, SaveFile, Colour, Font };
    struct Step
    {
        Kind kind;
        QString text; // expected, where the kind has one
        QVariant answer;
    };

    // The next answer of the script, which must be meant for this kind of prompt.
    QVariant take(Kind kind, const QString &text);
    QVariant show(Kind kind, const Shown &shown);
    QString pick(Kind kind, const platform::FileRequest &request);
    template <typename Value>
    static std::optional<Value> chosen(const QVariant &answer)
    {
        return answer.isValid() ? std::optional(answer.value<Value>()) : std::nullopt;
    }

    std::deque<Step> m_script;
    std::vector<Shown> m_shown;
    platform::FileRequest m_request;
};

} // namespace test
