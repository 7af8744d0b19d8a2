#pragma once

#include "forms/choice.h"
#include "recorder/message_table.h"

#include <optional>

namespace recorder {

// The rates that a message of this kind may have.
forms::Choices rateChoices(quint8 kind);
// The one of them that a rate code stands for: to an event every code but Disabled is "On".
quint8 rateChoice(quint8 rate, quint8 kind);
QString rateText(quint8 rate, quint8 kind);

// Rates for all messages at once.
void setStorageToMaximum(MessageTable &table);
void setOutputToMaximum(MessageTable &table);
void setOutputToTypical(MessageTable &table);
void disableOutput(MessageTable &table);

// The row of the message with this number, or else of the first one at or after the row `from`, round to it
// again, whose name begins with this text or holds it, without regard to case. Nothing when there is none.
std::optional<int> findMessage(const MessageTable &table, const QString &text, int from);

} // namespace recorder
