#pragma once

#include "variables/expression/program.h"

#include <span>

namespace variables::expression {

enum class RunStatus {
    Ended,       // the program reached its end
    Invalid,     // an unknown code, a slot or variable that does not exist, or no end
    RunTimeError // a root of a negative number, an overflow and the like
};

struct RunResult
{
    RunStatus status = RunStatus::Invalid;
    float value = 0; // slot 1, when the program has ended
};

// Runs a program as the recorder does: on a stack of 32-bit floats, with arithmetic in double precision.
// `variables` are values by catalogue index; those past its end are 0. Any program may be passed.
RunResult Standard(const WordProgram &program, std::span<const float> variables = {});
RunResult Standard(QByteArrayView program, std::span<const float> variables = {});

} // namespace variables::expression
