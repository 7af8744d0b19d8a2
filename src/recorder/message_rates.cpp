#include "recorder/message_rates.h"

#include <algorithm>
#include <array>
#include <vector>

namespace recorder {

namespace {

constexpr std::array StreamRates{"100Hz", "50Hz",  "25Hz",  "10Hz",  "5Hz",
                                 "1Hz",   "0.5Hz", "0.2Hz", "0.1Hz", "Disabled"};

struct MessageRate
{
    quint8 number;
    RateCode rate;
};

void setOutput(MessageTable &table, RateCode rate, const std::vector<MessageRate> &exceptions)
{
    for (MessageEntry &entry : table) {
        const auto exception = std::ranges::find(exceptions, entry.number, &MessageRate::number);
        entry.outputRate = codeOf(exception == exceptions.end() ? rate : exception->rate);
    }
}

// The first row from `from` on, round the table, for which this holds.
template <typename Condition>
std::optional<int> firstRow(const MessageTable &table, int from, Condition holds)
{
    const int count = static_cast<int>(table.size());
    for (int step = 0; step < count; ++step) {
        const int row = (from + step) % count;
        if (holds(table[static_cast<std::size_t>(row)]))
            return row;
    }
    return std::nullopt;
}

} // namespace

forms::Choices rateChoices(quint8 kind)
{
    if (kind != StreamKind)
        return {{rateText(OnCode, kind), OnCode}, {rateText(OffCode, kind), OffCode}};
    return forms::numbered(StreamRates);
}

quint8 rateChoice(quint8 rate, quint8 kind) { return kind == StreamKind || rate == OffCode ? rate : OnCode; }

QString rateText(quint8 rate, quint8 kind)
{
    if (kind != StreamKind)
        return rate == OffCode ? QStringLiteral("Off") : QStringLiteral("On");
    return rate < StreamRates.size() ? QString::fromLatin1(StreamRates.at(rate)) : QString();
}

void setStorageToMaximum(MessageTable &table)
{
    for (MessageEntry &entry : table)
        entry.storageRate = codeOf(RateCode::Hz100);
}

void setOutputToMaximum(MessageTable &table) { setOutput(table, RateCode::Hz100, {{3, RateCode::Disabled}}); }

void setOutputToTypical(MessageTable &table)
{
    setOutput(
        table, RateCode::Hz5,
        {{3, RateCode::Disabled}, {8, RateCode::Hz25}, {18, RateCode::Hz25}, {104, RateCode::Disabled}});
}

void disableOutput(MessageTable &table)
{
    for (MessageEntry &entry : table)
        entry.outputRate = entry.kind == NeededEventKind ? OnCode : OffCode;
}

std::optional<int> findMessage(const MessageTable &table, const QString &text, int from)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    const auto isIt = [&](const MessageEntry &entry) { return isNumber && entry.number == number; };
    if (const auto row = firstRow(table, 0, isIt))
        return row;
    const auto begins = [&text](const MessageEntry &entry) {
        return entry.name.startsWith(text, Qt::CaseInsensitive);
    };
    if (const auto row = firstRow(table, from, begins))
        return row;
    return firstRow(table, from, [&text](const MessageEntry &entry) {
        return entry.name.contains(text, Qt::CaseInsensitive);
    });
}

} // namespace recorder
