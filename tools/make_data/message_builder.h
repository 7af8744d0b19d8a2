#pragma once

#include "make_data/text_table.h"
#include "recorder/message_table.h"

namespace make_data {

// The code of a rate as the message table's dialog calls it. Reports a text that is no rate of such messages.
quint8 rateCode(RowReader &row, const QString &text, quint8 kind);

// All 256 messages; those that the table does not list are nameless and disabled. The result is of use only
// when no problem was added.
recorder::MessageTable buildMessages(const TextTable &table, Problems &problems);

} // namespace make_data
