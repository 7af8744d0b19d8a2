#pragma once

#include <QString>

#include <vector>

namespace forms {

// A row of a list and the value it stands for.
struct Choice
{
    QString text;
    int value = 0;
};
using Choices = std::vector<Choice>;

// The row in front of a list that may be left unset.
inline Choice none() { return {QStringLiteral("None"), 0}; }

// The rows of a table whose entries have a `text` and a `value`.
template <typename Table>
Choices choicesOf(const Table &table)
{
    Choices choices;
    for (const auto &entry : table)
        choices.push_back({QString::fromUtf8(entry.text), static_cast<int>(entry.value)});
    return choices;
}

// The rows of a table of texts; the value is the row's number.
template <typename Texts>
Choices numbered(const Texts &texts)
{
    Choices choices;
    for (const auto &text : texts)
        choices.push_back({QString(text), static_cast<int>(choices.size())});
    return choices;
}

} // namespace forms
