#include "make_data/message_builder.h"

#include "recorder/message_rates.h"

#include <algorithm>
#include <bitset>

namespace make_data {

namespace {

constexpr int MessageCells = 5;
constexpr int LongestName = 50;
constexpr int LastKind = 2;
constexpr auto Disabled = static_cast<quint8>(recorder::RateCode::Disabled);

recorder::MessageEntry entry(RowReader &row, quint8 number)
{
    recorder::MessageEntry result;
    result.number = number;
    result.name = row.text(1);
    if (result.name.size() > LongestName)
        row.complain(QStringLiteral("the name is longer than %1 characters").arg(LongestName));
    if (const auto kind = row.whole(row.text(4), 0, LastKind)) {
        result.kind = static_cast<quint8>(*kind);
        result.storageRate = rateCode(row, row.text(2), result.kind);
        result.outputRate = rateCode(row, row.text(3), result.kind);
    }
    return result;
}

} // namespace

quint8 rateCode(RowReader &row, const QString &text, quint8 kind)
{
    const forms::Choices rates = recorder::rateChoices(kind);
    const auto rate = std::ranges::find(rates, text, &forms::Choice::text);
    if (rate != rates.end())
        return static_cast<quint8>(rate->value);
    row.complain(QStringLiteral("\"%1\" is no rate of a message of kind %2").arg(text).arg(kind));
    return Disabled;
}

recorder::MessageTable buildMessages(const TextTable &table, Problems &problems)
{
    recorder::MessageTable messages;
    for (std::size_t i = 0; i < messages.size(); ++i)
        messages[i] = {static_cast<quint8>(i), {}, Disabled, Disabled, 0};

    std::bitset<std::tuple_size_v<recorder::MessageTable>> listed;
    for (const Row &source : table.rows) {
        RowReader row(table, source, problems);
        if (!row.hasCells(MessageCells))
            continue;
        const auto number = row.whole(row.text(0), 0, static_cast<int>(messages.size()) - 1);
        if (!number)
            continue;
        const auto slot = static_cast<std::size_t>(*number);
        if (listed[slot])
            row.complain(QStringLiteral("message %1 is listed twice").arg(*number));
        listed[slot] = true;
        messages[slot] = entry(row, static_cast<quint8>(*number));
    }
    return messages;
}

} // namespace make_data
