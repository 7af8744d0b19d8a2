#include "variables/expression/string_building.h"

#include "variables/expression/number_marks.h"
#include "variables/expression/variable_name.h"

#include <array>

namespace variables::expression {

namespace {

constexpr char WordMark = '#';

bool isLetter(char c) { return c >= 'a' && c <= 'z'; }

std::string lowered(QStringView text)
{
    std::string result;
    result.reserve(static_cast<std::size_t>(text.size()) * 2 + 2);
    result += ' ';
    for (const QChar c : text) {
        const char16_t code = c.unicode();
        const bool isCapital = code >= u'A' && code <= u'Z';
        result += code > 0x7F ? '?' : static_cast<char>(isCapital ? code - u'A' + u'a' : code);
    }
    result += ' ';
    return result;
}

void replaceAll(std::string &text, std::string_view before, std::string_view after)
{
    auto found = text.find(before);
    if (found == std::string::npos)
        return;
    std::string result;
    result.reserve(text.size() + 4 * after.size());
    std::size_t taken = 0;
    for (; found != std::string::npos; found = text.find(before, taken)) {
        result.append(text, taken, found - taken).append(after);
        taken = found + before.size();
    }
    text = std::move(result.append(text, taken));
}

void replaceVehicleConstants(std::string &text)
{
    // "car_10" is taken by "car_1", which comes first: 00.
    static constexpr std::array Names{"car_1", "car_2", "car_3", "car_4", "car_5", "car_6",
                                      "car_7", "car_8", "car_9", "cda",   "roll",  "mass"};
    if (text.find_first_of("crm") == std::string::npos)
        return;
    for (const char *name : Names)
        replaceAll(text, name, "0");
    // Temp, Press and Humid stand for nothing: they are looked for in this spelling, after all letters were
    // made small. Deliberate.
}

bool isPartOfWord(const std::string &text, std::size_t at)
{
    return (at > 0 && isLetter(text[at - 1])) || (at + 1 < text.size() && isLetter(text[at + 1]));
}

// The input wherever it stands alone or after a digit, as in 3x; not as a letter of a word.
void replaceInput(std::string &text, char input, std::string_view name)
{
    if (text.find(input) == std::string::npos)
        return;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == input && isPartOfWord(text, at))
            text[at] = WordMark;
    }
    replaceAll(text, std::string_view(&input, 1), name);
    replaceAll(text, std::string_view(&WordMark, 1), std::string_view(&input, 1));
}

} // namespace

std::string StringBuilding(const QString &text, int variableIndex, const platform::NumberLocale &locale)
{
    const bool plain =
        locale.decimalSeparator == QLatin1String(".") && locale.listSeparator == QLatin1String(",");
    std::string result = lowered(plain ? text : withMarks(text, locale, {}));
    const std::string name = variableName(variableIndex).toStdString();
    replaceVehicleConstants(result);
    replaceInput(result, 'u', name);
    replaceInput(result, 'x', name);
    return result;
}

} // namespace variables::expression
