#pragma once

#include "common/run_time_error.h"
#include "platform/file_replace.h"
#include "platform/prompts.h"

#include <new>
#include <optional>
#include <utility>

namespace platform {

void reportFailure(Prompts &prompts, const QString &reason);

// Tells of a file that stands without the device having confirmed it; nothing for one that was confirmed.
void reportStanding(Prompts &prompts, const QString &path, Standing standing);

// The reason why a step failed; nothing when it did not. The only place that catches.
template <typename Step>
std::optional<QString> failureOf(Step &&step)
{
    try {
        std::forward<Step>(step)();
        return std::nullopt;
    } catch (const common::RunTimeError &error) {
        return error.reason();
    } catch (const std::bad_alloc &) {
        return QStringLiteral("Out of memory");
    }
}

// Round commands and dialog buttons: a run-time error ends the command and shows the general error message.
// True when nothing failed.
template <typename Command>
bool reportFailures(Prompts &prompts, Command &&command)
{
    const auto reason = failureOf(std::forward<Command>(command));
    if (reason)
        reportFailure(prompts, *reason);
    return !reason;
}

// Round single steps of event handlers: a step that fails is dropped, and the next one runs. True when it
// did not fail.
template <typename Step>
bool skipFailures(Step &&step)
{
    return !failureOf(std::forward<Step>(step)); // dropped on purpose
}

} // namespace platform
