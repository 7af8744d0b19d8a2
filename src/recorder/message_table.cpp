#include "recorder/message_table.h"

#include "common/bytes.h"
#include "common/code_page.h"

namespace recorder {

namespace {

constexpr int NameWidth = 50;
constexpr int RowSize = NameWidth + 4;

// Names are padded with blanks or, in older files, with NULs.
QString nameOf(QByteArrayView field)
{
    QString name = common::fromCodePage(common::cutAtNul(field));
    while (name.endsWith(QLatin1Char(' ')))
        name.chop(1);
    return name;
}

} // namespace

quint8 listedRate(quint8 rate, quint8 kind)
{
    if (rate <= codeOf(RateCode::Disabled))
        return rate;
    return kind == StreamKind ? codeOf(RateCode::Disabled) : OnCode;
}

void readMessageTable(const QByteArray &bytes, MessageTable &table)
{
    common::ByteReader reader(bytes);
    for (MessageEntry &entry : table) {
        if (reader.remaining() < RowSize)
            return;
        entry.number = reader.get<quint8>();
        entry.name = nameOf(reader.get(NameWidth));
        entry.storageRate = reader.get<quint8>();
        entry.outputRate = reader.get<quint8>();
        entry.kind = reader.get<quint8>();
        entry.storageRate = listedRate(entry.storageRate, entry.kind);
        entry.outputRate = listedRate(entry.outputRate, entry.kind);
    }
}

QByteArray writeMessageTable(const MessageTable &table)
{
    common::ByteWriter writer;
    for (const MessageEntry &entry : table) {
        writer.put(entry.number);
        writer.put(QByteArrayView(common::toCodePage(entry.name).leftJustified(NameWidth, ' ', true)));
        writer.put(entry.storageRate);
        writer.put(entry.outputRate);
        writer.put(entry.kind);
    }
    return writer.bytes();
}

} // namespace recorder
