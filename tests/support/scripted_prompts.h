#pragma once

#include "platform/prompts.h"

#include <QVariant>

#include <deque>
#include <gtest/gtest.h>
#include <vector>

namespace test {

// Prompts that answer from a script. A prompt that was not expected, or an answer that nobody asked for,
// fails the test.
class ScriptedPrompts final : public platform::Prompts
{
    using Icon = platform::Icon;

public:
    struct Shown
    {
        Icon icon;
        QString text;
    };

    ~ScriptedPrompts() override
    {
        for (const Step &step : m_script)
            ADD_FAILURE() << "nobody asked: " << step.text.toStdString();
    }

    void expectMessage(const QString &text) { expect({Kind::Message, text, {}}); }
    void expectQuestion(const QString &text, bool yes) { expect({Kind::Question, text, yes}); }
    void expectConfirm(const QString &text, bool ok) { expect({Kind::Confirmation, text, ok}); }
    void expectChoice(std::optional<int> option) { expect({Kind::Choice, {}, QVariant::fromValue(option)}); }
    void expectInput(const QString &answer) { expect({Kind::Input, {}, answer}); }
    void expectOpenFile(const QString &path) { expect({Kind::OpenFile, {}, path}); }
    void expectSaveFile(const QString &path) { expect({Kind::SaveFile, {}, path}); }
    void expectFont(const std::optional<QFont> &font) { expect({Kind::Font, {}, QVariant::fromValue(font)}); }
    void expectPage(const QUrl &page) { expect({Kind::Page, page.toString(), {}}); }
    void expectColour(std::optional<QRgb> rgb) { expect({Kind::Colour, {}, QVariant::fromValue(rgb)}); }

    // All that was shown so far, in order.
    const std::vector<Shown> &shown() const { return m_shown; }
    const platform::FileRequest &lastFileRequest() const { return m_request; }

    void message(Icon icon, const QString &, const QString &text) override
    {
        show(Kind::Message, text, icon);
    }
    bool ask(Icon icon, const QString &, const QString &text) override
    {
        return show(Kind::Question, text, icon).toBool();
    }
    bool confirm(Icon icon, const QString &, const QString &text) override
    {
        return show(Kind::Confirmation, text, icon).toBool();
    }
    std::optional<int> choose(const QString &, const QString &text, const QStringList &) override
    {
        return show(Kind::Choice, text).value<std::optional<int>>();
    }
    QString input(const QString &, const QString &text, const QString &) override
    {
        return show(Kind::Input, text).toString();
    }
    QString openFile(const platform::FileRequest &request) override { return pick(Kind::OpenFile, request); }
    QString saveFile(const platform::FileRequest &request) override { return pick(Kind::SaveFile, request); }
    std::optional<QRgb> colour(QRgb) override { return take(Kind::Colour).value<std::optional<QRgb>>(); }
    std::optional<QFont> font(const QFont &) override
    {
        return take(Kind::Font).value<std::optional<QFont>>();
    }
    void showPage(const QUrl &page) override { take(Kind::Page, page.toString()); }

private:
    enum class Kind {
        Message,
        Question,
        Confirmation,
        Choice,
        Input,
        OpenFile,
        SaveFile,
        Colour,
        Font,
        Page
    };
    struct Step
    {
        Kind kind;
        QString text; // expected, where the kind has one
        QVariant answer;
    };

    void expect(const Step &step) { m_script.push_back(step); }
    // The next answer of the script, which must be meant for this kind of prompt.
    QVariant take(Kind kind, const QString &text = {})
    {
        const Step step = m_script.empty() ? Step{} : m_script.front();
        if (m_script.empty() || step.kind != kind || (!step.text.isNull() && step.text != text)) {
            ADD_FAILURE() << "unexpected prompt: " << text.toStdString();
            return {};
        }
        m_script.pop_front();
        return step.answer;
    }
    QVariant show(Kind kind, const QString &text, Icon icon = Icon::None)
    {
        m_shown.push_back({icon, text});
        return take(kind, text);
    }
    QString pick(Kind kind, const platform::FileRequest &request)
    {
        m_request = request;
        return take(kind, request.title).toString();
    }

    std::deque<Step> m_script;
    std::vector<Shown> m_shown;
    platform::FileRequest m_request;
};

} // namespace test
