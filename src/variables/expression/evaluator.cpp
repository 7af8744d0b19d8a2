#include "variables/expression/evaluator.h"

#include "variables/catalogue.h"
#include "variables/expression/functions.h"

#include <bit>
#include <cmath>
#include <limits>

namespace variables::expression {

namespace {

class Machine
{
public:
    explicit Machine(std::span<const float> variables) : m_variables(variables) {}

    RunStatus step(const Instruction &instruction);
    float result() const { return m_stack[FirstSlot]; }

private:
    RunStatus loadVariable(quint32 slot, quint32 indexLessOne);
    RunStatus call(const Instruction &instruction);
    RunStatus store(quint32 slot, double value);
    std::span<const float> valuesAt(quint32 first, std::size_t count) const
    {
        return {&m_stack[first], count};
    }

    std::array<float, StackSlots> m_stack{};
    std::span<const float> m_variables;
};

RunStatus Machine::step(const Instruction &instruction)
{
    const OperationRow &row = *instruction.operation;
    const quint32 slot = instruction.slot;
    if (!fitsStack(slot, row.reach))
        return RunStatus::Invalid;
    switch (row.code) {
    case Op::LoadVariable:
        return loadVariable(slot, instruction.operand);
    case Op::LoadConstant:
        m_stack[slot] = std::bit_cast<float>(instruction.operand);
        return RunStatus::Ended;
    case Op::Call:
        return call(instruction);
    case Op::Nothing:
    case Op::NothingEither:
    case Op::End:
        return RunStatus::Ended;
    default:
        return store(slot, applyOperator(row.code, m_stack[slot], m_stack[slot + 1]));
    }
}

RunStatus Machine::loadVariable(quint32 slot, quint32 indexLessOne)
{
    if (indexLessOne >= static_cast<quint32>(LastIndex))
        return RunStatus::Invalid;
    const std::size_t index = indexLessOne + 1;
    m_stack[slot] = index < m_variables.size() ? m_variables[index] : 0.0F;
    return RunStatus::Ended;
}

RunStatus Machine::call(const Instruction &instruction)
{
    const int arguments = instruction.arguments();
    if (arguments == 0)
        return RunStatus::Ended;
    const FunctionRow *row = functionRow(instruction.function(), arguments);
    if (!row)
        return RunStatus::Invalid;
    // The three-part function reads three slots whatever number it is called with.
    const int read = row->arguments == SeveralArguments ? arguments : row->arguments;
    if (!fitsStack(instruction.slot, read))
        return RunStatus::Invalid;
    const auto values = valuesAt(instruction.slot, static_cast<std::size_t>(read));
    return store(instruction.slot, applyFunction(row->code, values));
}

RunStatus Machine::store(quint32 slot, double value)
{
    if (!(std::fabs(value) <= std::numeric_limits<float>::max()))
        return RunStatus::RunTimeError;
    m_stack[slot] = static_cast<float>(value);
    return RunStatus::Ended;
}

template <typename Reader>
RunResult run(Reader reader, std::span<const float> variables)
{
    Machine machine(variables);
    Instruction instruction;
    while (reader.next(instruction)) {
        const RunStatus status = machine.step(instruction);
        if (status != RunStatus::Ended)
            return {status, 0};
        if (instruction.operation->code == Op::End)
            return {RunStatus::Ended, machine.result()};
    }
    return {RunStatus::Invalid, 0};
}

} // namespace

RunResult Standard(const WordProgram &program, std::span<const float> variables)
{
    return run(WordReader(program), variables);
}

RunResult Standard(QByteArrayView program, std::span<const float> variables)
{
    return run(ByteReader(program), variables);
}

} // namespace variables::expression
