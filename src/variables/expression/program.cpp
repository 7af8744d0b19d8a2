#include "variables/expression/program.h"

#include <algorithm>

namespace variables::expression {

namespace {

constexpr int HeadWords = 2;
constexpr int HeadBytes = 2;

int wordsOf(const OperationRow &row) { return row.operandBytes == 0 ? HeadWords : 2 * HeadWords; }

} // namespace

bool WordProgram::append(quint32 slot, Op code, quint32 operand)
{
    const int words = wordsOf(*operationRow(static_cast<quint32>(code)));
    if (slot >= StackSlots || m_size + words > MostWords)
        return false;
    quint32 *word = m_words.data() + m_size;
    word[0] = slot;
    word[1] = static_cast<quint32>(code);
    if (words > HeadWords) {
        const bool isCall = code == Op::Call;
        word[2] = isCall ? operand & 0xFF : operand;
        word[3] = isCall ? operand >> 8 : 0;
    }
    m_size += words;
    return true;
}

bool WordProgram::subtractFromZero(int from, quint32 slot)
{
    const int zero = wordsOf(*operationRow(static_cast<quint32>(Op::LoadConstant)));
    if (m_size + zero + HeadWords > MostWords)
        return false;
    for (int at = from; at < m_size;) {
        quint32 *word = m_words.data() + at;
        if (++word[0] >= StackSlots)
            return false;
        at += wordsOf(*operationRow(word[1]));
    }
    const auto begin = m_words.begin() + from;
    const auto end = m_words.begin() + m_size;
    std::copy_backward(begin, end, end + zero);
    std::copy_n(std::array{slot, static_cast<quint32>(Op::LoadConstant), 0U, 0U}.begin(), zero, begin);
    m_size += zero;
    return append(slot, Op::Subtract);
}

bool WordReader::next(Instruction &instruction)
{
    if (m_program.size() - m_at < HeadWords)
        return false;
    instruction.slot = m_program[m_at];
    instruction.operation = operationRow(m_program[m_at + 1]);
    if (!instruction.operation)
        return false;
    const int words = wordsOf(*instruction.operation);
    if (m_program.size() - m_at < words)
        return false;
    if (words > HeadWords) {
        instruction.operand = m_program[m_at + 2];
        if (instruction.operation->code == Op::Call)
            instruction.operand = (instruction.operand & 0xFF) | m_program[m_at + 3] << 8;
    }
    m_at += words;
    return true;
}

bool ByteReader::next(Instruction &instruction)
{
    if (m_program.size() - m_at < HeadBytes)
        return false;
    const auto *byte = reinterpret_cast<const quint8 *>(m_program.data() + m_at);
    instruction.slot = byte[0];
    instruction.operation = operationRow(byte[1]);
    if (!instruction.operation || m_program.size() - m_at - HeadBytes < instruction.operation->operandBytes)
        return false;
    instruction.operand = 0;
    for (int i = instruction.operation->operandBytes; i > 0; --i)
        instruction.operand = instruction.operand << 8 | byte[HeadBytes + i - 1];
    m_at += HeadBytes + instruction.operation->operandBytes;
    return true;
}

bool Compressed(const WordProgram &program, QByteArray &bytes)
{
    std::array<char, MostBytes> out;
    std::size_t size = 0;
    WordReader reader(program);
    Instruction instruction;
    while (reader.next(instruction)) {
        const OperationRow &row = *instruction.operation;
        const auto operandBytes = static_cast<std::size_t>(row.operandBytes);
        if (size + HeadBytes + operandBytes > out.size())
            return false;
        out[size++] = static_cast<char>(instruction.slot);
        out[size++] = static_cast<char>(row.code);
        for (std::size_t i = 0; i < operandBytes; ++i)
            out[size++] = static_cast<char>(instruction.operand >> 8 * i);
        if (row.code == Op::End) {
            bytes = QByteArray(out.data(), static_cast<qsizetype>(size));
            return true;
        }
    }
    return false;
}

} // namespace variables::expression
