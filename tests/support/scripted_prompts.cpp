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

QVariant ScriptedPrompts::show(Kind kind, const Shown &shown)
{
    m_shown.push_back(shown);
    return take(kind, shown.text);
}

QString ScriptedPrompts::pick(Kind kind, const platform::FileRequest &request)
{
    m_request = request;
    return take(kind, request.title).toString();
}

} // namespace test
