#pragma once

#include <QByteArray>
#include <QString>

#include <array>

namespace recorder {

// Rates of a logged message. For event messages any code but Disabled is "On".
enum class RateCode : quint8 { Hz100, Hz50, Hz25, Hz10, Hz5, Hz1, Hz0_5, Hz0_2, Hz0_1, Disabled };

struct MessageEntry
{
    quint8 number = 0;
    QString name;           // at most 50 characters
    quint8 storageRate = 0; // RateCode; for events kept as it stands in the file
    quint8 outputRate = 0;  // RateCode
    quint8 kind = 0;        // 0 stream, 1 event, 2 event that the serial output always needs

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
