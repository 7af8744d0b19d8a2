#include "variables/expression/rebuilder.h"

#include "common/number_text.h"
#include "variables/expression/number_marks.h"
#include "variables/expression/program.h"
#include "variables/expression/variable_name.h"

#include <bit>
#include <string>

namespace variables::expression {

namespace {

std::string wrap(const std::string &text)
{
    return text.find(' ') == std::string::npos ? text : '(' + text + ')';
}

// One text for each slot of the stack.
class Rebuilder
{
public:
    explicit Rebuilder(int variableIndex) : m_variable(variableIndex) {}

    bool step(const Instruction &instruction);
    const std::string &result() const { return m_texts[FirstSlot]; }

private:
    std::string variableText(quint32 indexLessOne) const;
    bool call(const Instruction &instruction);
    bool joined(std::string_view function, quint32 slot, int arguments);
    bool store(quint32 slot, std::string text);

    std::array<std::string, StackSlots> m_texts;
    int m_variable;
};

bool Rebuilder::step(const Instruction &instruction)
{
    const OperationRow &row = *instruction.operation;
    const quint32 slot = instruction.slot;
    if (!fitsStack(slot, row.reach))
        return false;
    switch (row.code) {
    case Op::LoadVariable:
        return store(slot, variableText(instruction.operand));
    case Op::LoadConstant:
        return store(slot, common::shortestText(std::bit_cast<float>(instruction.operand)).toStdString());
    case Op::Call:
        return call(instruction);
    case Op::Nothing:
    case Op::NothingEither:
    case Op::End:
        return true;
    default:
        return store(slot, wrap(m_texts[slot]).append(" ").append(row.text) + ' ' + wrap(m_texts[slot + 1]));
    }
}

std::string Rebuilder::variableText(quint32 indexLessOne) const
{
    const int index = static_cast<int>(indexLessOne) + 1;
    return index == m_variable ? "u" : variableName(index).toUpper().toStdString();
}

bool Rebuilder::call(const Instruction &instruction)
{
    const int arguments = instruction.arguments();
    if (arguments == 0)
        return true;
    const FunctionRow *row = functionRow(instruction.function(), arguments);
    return row && joined(row->text, instruction.slot,
                         row->arguments == SeveralArguments ? arguments : row->arguments);
}

bool Rebuilder::joined(std::string_view function, quint32 slot, int arguments)
{
    if (!fitsStack(slot, arguments))
        return false;
    std::string text(function);
    for (std::size_t i = slot; i < slot + static_cast<std::size_t>(arguments); ++i) {
        text.append(i == slot ? "" : ",").append(m_texts[i]);
        if (text.size() > LongestEquation)
            return false;
    }
    return store(slot, text + ')');
}

bool Rebuilder::store(quint32 slot, std::string text)
{
    if (text.size() > LongestEquation)
        return false;
    m_texts[slot] = std::move(text);
    return true;
}

} // namespace

bool rebuildEquation(QByteArrayView program, int variableIndex, const platform::NumberLocale &locale,
                     QString &text)
{
    text.clear();
    Rebuilder rebuilder(variableIndex);
    ByteReader reader(program);
    Instruction instruction;
    while (reader.next(instruction) && rebuilder.step(instruction)) {
        if (instruction.operation->code == Op::End) {
            text = withMarks(QString::fromStdString(rebuilder.result()), {}, locale);
            return true;
        }
    }
    return false;
}

} // namespace variables::expression
