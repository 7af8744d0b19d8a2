#include "surface/variable_edits.h"

#include "common/number_parser.h"
#include "common/number_text.h"
#include "common/rounding.h"

#include <QRegularExpression>
#include <QStringList>

namespace surface {

using namespace Qt::StringLiterals;
using variables::VariableRecord;

namespace {

bool beginsWithNumber(const QString &text, const QString &decimalMark)
{
    const QString number = u"^\\s*[-+]?([.,\u066B]|%1)?\\d"_s; // digits of any script
    const QRegularExpression pattern(number.arg(QRegularExpression::escape(decimalMark)),
                                     QRegularExpression::UseUnicodePropertiesOption);
    return pattern.match(text).hasMatch();
}

// Stores what was typed; an empty answer is a cancel. Throws RunTimeError for a number past all bounds.
bool storeNumber(float &field, const QString &answer)
{
    if (answer.trimmed().isEmpty())
        return false;
    field = common::toSingle(common::parseNumber(answer));
    return true;
}

} // namespace

std::optional<VariableLine> variableLine(const QString &key)
{
    const QStringList fields = key.split('#'_L1);
    if (!key.startsWith('#'_L1) || fields.size() < 3)
        return std::nullopt;
    const int index = fields[2].toInt();
    if (index < 1 || index > variables::LastIndex)
        return std::nullopt;
    return VariableLine{fields[1], index};
}

bool editMaximumRoc(VariableRecord &record, platform::Prompts &prompts, const QString &decimalMark)
{
    const QString current = common::shortestText(record.MaximumROC, decimalMark);
    const QString answer = prompts.input(u"Maximum rate of change"_s,
                                         u"Please inputs a new maximum rate of change "_s + current, current);
    return beginsWithNumber(answer, decimalMark) && storeNumber(record.MaximumROC, answer);
}

bool editName(VariableRecord &record, platform::Prompts &prompts)
{
    const QString answer =
        prompts.input(u"New name"_s, u"Please inputs a new name for "_s + record.BaseName, record.BaseName)
            .trimmed();
    if (answer.isEmpty())
        return false;
    record.BaseName = answer;
    return true;
}

bool editSmoothing(VariableRecord &record, platform::Prompts &prompts, const QString &decimalMark)
{
    return storeNumber(record.SmoothingTime,
                       prompts.input(u"Smoothing time"_s,
                                     u"Please inputs a new smoothing time for "_s + record.BaseName,
                                     common::shortestText(record.SmoothingTime, decimalMark)));
}

} // namespace surface
