#pragma once

#include "common/run_time_error.h"
#include "platform/prompts.h"

#include <new>
#include <utility>

namespace platform {

void reportFailure(Prompts &prompts, const QString &reason);

// Round commands and dialog buttons: a run-time error ends the command and shows the general error message.
// True when nothing failed.
template <typename Command>
bool reportFailures(Prompts &prompts, Command &&command)
{
    try {
        std::forward<Command>(command)();
        return true;
    } catch (const common::RunTimeError &error) {
        reportFailure(prompts, error.reason());
    } catch (const std::bad_alloc &) {
        reportFailure(prompts, QStringLiteral("Out of memory"));
    }
    return false;
}

// Round single steps of event handlers: a step that fails is dropped, and the next one runs. True when it
// did not fail.
template <typename Step>
bool skipFailures(Step &&step)
{
    try {
        std::forward<Step>(step)();
        return true;
    } catch (const common::RunTimeError &) {
        return false; // dropped on purpose
    } catch (const std::bad_alloc &) {
        return false;
    }
}

} // namespace platform
