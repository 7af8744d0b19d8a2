#pragma once

#include <QByteArray>
#include <QString>

#include <array>

namespace recorder {

// Rates of a logged message.
enum class RateCode : quint8 { Hz100, Hz50, Hz25, Hz10, Hz5, Hz1, Hz0_5, Hz0_2, Hz0_1, Disabled };

constexpr quint8 codeOf(RateCode rate) { return static_cast<quint8>(rate); }

// An event is on or off: any code but that of Disabled is "On".
inline constexpr quint8 OnCode = codeOf(RateCode::Hz100);
inline constexpr quint8 OffCode = codeOf(RateCode::Disabled);

// Kinds of messages. All but streams are events.
inline constexpr quint8 StreamKind = 0;
inline constexpr quint8 NeededEventKind = 2; // the serial output always needs it

struct MessageEntry
{
    quint8 number = 0;
    QString name;           // at most 50 characters
    quint8 storageRate = 0; // RateCode; for events kept as it stands in the file
    quint8 outputRate = 0;  // RateCode
    quint8 kind = StreamKind;

    bool operator==(const MessageEntry &) const = default;
};

// A rate code as its list holds it: one past Disabled is Disabled for a stream, and "On" for an event.
quint8 listedRate(quint8 rate, quint8 kind);

using MessageTable = std::array<MessageEntry, 256>;

// Reads rows of 54 bytes until the bytes end or the table is full; rows that the file lacks stay as they
// were. Rates are those of the lists.
void readMessageTable(const QByteArray &bytes, MessageTable &table);

// All 256 rows.
QByteArray writeMessageTable(const MessageTable &table);

} // namespace recorder
