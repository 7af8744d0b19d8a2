#include "make_data/message_builder.h"

#include <bitset>

namespace make_data {

namespace {

constexpr int MessageCells = 5;
constexpr int LongestName = 50;
constexpr int LastKind = 2;
constexpr auto Disabled = static_cast<quint8>(recorder::RateCode::Disabled);

// The texts of the rate codes, in their order.
const QStringList &rateTexts(quint8 kind)
{
    static const QStringList stream{
        QStringLiteral("100Hz"), QStringLiteral("50Hz"),    QStringLiteral("25Hz"),  QStringLiteral("10Hz"),
        QStringLiteral("5Hz"),   QStringLiteral("1Hz"),     QStringLiteral("0.5Hz"), QStringLiteral("0.2Hz"),
        QStringLiteral("0.1Hz"), QStringLiteral("Disabled")};
    static const QStringList event{QStringLiteral("On"), QStringLiteral("Off")};
    return kind == 0 ? stream : event;
}

quint8 rateCode(RowReader &row, const QString &text, quint8 kind)
{
    const QStringList &texts = rateTexts(kind);
    const qsizetype code = texts.indexOf(text);
    if (code < 0)
        row.complain(QStringLiteral("\"%1\" is no rate of a message of kind %2").arg(text).arg(kind));
    return code == texts.size() - 1 ? Disabled : static_cast<quint8>(code);
}

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
