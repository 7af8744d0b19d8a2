#include "support/scripted_prompts.h"

#include <gtest/gtest.h>

namespace test {

ScriptedPrompts::~ScriptedPrompts()
{
    for (const Step &step : m_script)
        ADD_FAILURE() << "nobody asked: " << step.text.toStdString();
}

QVariant ScriptedPrompts::take(Kind kind, const QString &text)
{
    if (m_script.empty() || m_script.front().kind != kind ||
        (!m_script.front().text.isNull() && m_script.front().text != text)) {
        ADD_FAILURE() << "unexpected prompt: " << text.toStdString();
        return {};
    }
    const QVariant answer = m_script.front().answer;
    m_script.pop_front();
    return answer;
}

void ScriptedPrompts::message(platform::Icon icon, const QString &title, const QString &text)
{
    m_shown.push_back({icon, title, text});
    take(Kind::Message, text);
}

bool ScriptedPrompts::ask(platform::Icon icon, const QString &title, const QString &text)
{
    m_shown.push_back({icon, title, text});
    return take(Kind::Question, text).toBool();
}

bool ScriptedPrompts::confirm(platform::Icon icon, const QString &title, const QString &text)
{
    m_shown.push_back({icon, title, text});
    return take(Kind::Confirmation, text).toBool();
}

std::optional<int> ScriptedPrompts::choose(const QString &title, const QString &text, const QStringList &)
{
    m_shown.push_back({platform::Icon::None, title, text});
    const QVariant answer = take(Kind::Choice, text);
    return answer.isValid() && answer.toInt() >= 0 ? std::optional(answer.toInt()) : std::nullopt;
}

QString ScriptedPrompts::input(const QString &title, const QString &prompt, const QString &)
{
    m_shown.push_back({platform::Icon::None, title, prompt});
    return take(Kind::Input, prompt).toString();
}

QString ScriptedPrompts::openFile(const platform::FileRequest &request)
{
    m_request = request;
    return take(Kind::OpenFile, request.title).toString();
}

QString ScriptedPrompts::saveFile(const platform::FileRequest &request)
{
    m_request = request;
    return take(Kind::SaveFile, request.title).toString();
}

std::optional<QRgb> ScriptedPrompts::colour(QRgb)
{
    const QVariant answer = take(Kind::Colour, {});
    return answer.isValid() ? std::optional(answer.value<QRgb>()) : std::nullopt;
}

std::optional<QFont> ScriptedPrompts::font(const QFont &)
{
    const QVariant answer = take(Kind::Font, {});
    return answer.isValid() ? std::optional(answer.value<QFont>()) : std::nullopt;
}

} // namespace test
