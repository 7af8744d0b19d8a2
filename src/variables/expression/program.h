#pragma once

#include "variables/expression/opcodes.h"

#include <QByteArray>

#include <array>

namespace variables::expression {

inline constexpr int StackSlots = 100;
inline constexpr quint32 FirstSlot = 1; // slot 0 is never used; the result of a program is in slot 1
inline constexpr int MostWords = 256;
inline constexpr int MostBytes = 257;

// Whether `reach` slots from `slot` upward lie on the stack; no slot at all always does.
constexpr bool fitsStack(quint32 slot, int reach)
{
    return reach == 0 || (reach <= StackSlots && slot <= static_cast<quint32>(StackSlots - reach));
}

// One step of a program, whatever form it is stored in.
struct Instruction
{
    quint32 slot = 0;
    const OperationRow *operation = nullptr;
    // LoadVariable: catalogue index - 1. LoadConstant: bits of the float. Call: arguments in the low byte,
    // function code in the byte above.
    quint32 operand = 0;

    int arguments() const { return static_cast<int>(operand & 0xFF); }
    quint32 function() const { return operand >> 8; }
};

constexpr quint32 callOperand(int arguments, Function function)
{
    return static_cast<quint32>(arguments) | static_cast<quint32>(function) << 8;
}

// A program as the parser makes it: two 32-bit words (slot, code) for each instruction and two more after
// those with an operand (the operand and a spare one; for calls the number of arguments and the function).
class WordProgram
{
public:
    // False when the program is full or the slot lies outside the stack.
    bool append(quint32 slot, Op code, quint32 operand = 0);
    // Puts "0 -" before everything from word `from` on: what stands there moves up by one slot. False as
    // above; a program without room for it stays as it is.
    bool subtractFromZero(int from, quint32 slot);

    int size() const { return m_size; } // in words
    quint32 operator[](int index) const { return m_words[static_cast<std::size_t>(index)]; }

private:
    std::array<quint32, MostWords> m_words;
    int m_size = 0;
};

// Walk a program from its first instruction. next() answers false at its end, at an unknown code and where an
// instruction is cut off.
class WordReader
{
public:
    explicit WordReader(const WordProgram &program) : m_program(program) {}
    bool next(Instruction &instruction);

private:
    const WordProgram &m_program;
    int m_at = 0;
};

// A program as it stands in layout files: one byte each for slot and code, the operand little-endian.
class ByteReader
{
public:
    explicit ByteReader(QByteArrayView program) : m_program(program) {}
    bool next(Instruction &instruction);

private:
    QByteArrayView m_program;
    qsizetype m_at = 0;
};

// Turns a word program into bytes. False, with `bytes` untouched, when it has no end or takes more than
// MostBytes.
bool Compressed(const WordProgram &program, QByteArray &bytes);

} // namespace variables::expression
