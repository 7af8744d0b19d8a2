#include "variables/expression/parser.h"

#include "variables/expression/variable_name.h"

#include <algorithm>
#include <bit>
#include <charconv>

namespace variables::expression {

namespace {

constexpr int DeepestNesting = 200; // of parentheses and functions

bool isBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isLetter(char c) { return c >= 'a' && c <= 'z'; }
char small(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool startsWith(std::string_view text, std::string_view spelling)
{
    if (text.size() < spelling.size())
        return false;
    for (std::size_t i = 0; i < spelling.size(); ++i) {
        if (text[i] != small(spelling[i]))
            return false;
    }
    return true;
}

// A word operator ends where its letters do: "x or2" is no equation.
bool startsWithOperator(std::string_view text, std::string_view spelling)
{
    const bool isWord = isLetter(small(spelling.front()));
    const char next = text.size() > spelling.size() ? text[spelling.size()] : ' ';
    return startsWith(text, spelling) && !(isWord && (isLetter(next) || isDigit(next)));
}

// The operator that `text` begins with, by its longest spelling; `length` is that of the spelling.
const OperationRow *symbolAt(std::string_view text, std::size_t &length)
{
    const OperationRow *found = nullptr;
    length = 0;
    for (const OperationRow &row : Operations) {
        if (row.precedence != NoPrecedence && row.text.size() > length &&
            startsWithOperator(text, row.text)) {
            found = &row;
            length = row.text.size();
        }
    }
    return found;
}

const FunctionRow *functionNamed(std::string_view name)
{
    for (const FunctionRow &row : Functions) {
        if (row.text.size() == name.size() + 1 && startsWith(name, row.text.substr(0, name.size())))
            return &row;
    }
    return nullptr;
}

// Whether a number that fits no 32-bit float lies too close to 0, not too far from it.
bool isTooSmall(std::string_view number)
{
    const std::size_t mantissa = std::min(number.find_first_of("eE"), number.size());
    const std::size_t point = std::min(number.find('.'), mantissa);
    const std::size_t firstDigit = number.find_first_of("123456789");
    double exponent = 0;
    if (mantissa < number.size()) {
        const std::size_t sign = number[mantissa + 1] == '+' ? 1 : 0;
        std::from_chars(number.data() + mantissa + 1 + sign, number.data() + number.size(), exponent);
    }
    return static_cast<double>(point) + exponent < static_cast<double>(firstDigit);
}

class Parser
{
public:
    Parser(std::string_view text, WordProgram &program)
        : m_at(text.data()), m_end(text.data() + text.size()), m_program(program)
    {
    }

    bool equation()
    {
        return expression(FirstSlot, LoosestPrecedence) && m_at == m_end &&
               m_program.append(FirstSlot, Op::End);
    }

private:
    bool expression(quint32 slot, int loosest);
    bool signedPower(quint32 slot);
    bool negate(quint32 slot, int from);
    bool value(quint32 slot);
    bool number(quint32 slot);
    bool variable(quint32 slot);
    bool group(quint32 slot);
    bool call(quint32 slot);
    bool arguments(quint32 slot, int &count);
    bool readOperator();

    std::string_view rest() const { return {m_at, static_cast<std::size_t>(m_end - m_at)}; }
    bool atVariable() const { return rest().substr(0, VariablePrefix.size()) == VariablePrefix; }
    void skipBlanks();
    bool take(char c);
    bool put(quint32 slot, Op code, quint32 operand = 0);

    const char *m_at;
    const char *m_end;
    WordProgram &m_program;
    const OperationRow *m_operator = nullptr; // the one after the last value; has been passed over
    Op m_last = Op::Nothing;                  // the last instruction's
    int m_depth = 0;
};

// Everything in front of the first operator that binds looser than `loosest`.
bool Parser::expression(quint32 slot, int loosest)
{
    if (!signedPower(slot))
        return false;
    while (m_operator && m_operator->precedence >= loosest) {
        const OperationRow &operation = *m_operator;
        if (!expression(slot + 1, operation.precedence + 1) || !put(slot, operation.code))
            return false;
    }
    return true;
}

bool Parser::signedPower(quint32 slot)
{
    const int from = m_program.size();
    int minuses = 0;
    bool hasSign = false;
    for (skipBlanks(); m_at != m_end && (*m_at == '-' || *m_at == '+'); skipBlanks()) {
        hasSign = true;
        minuses += *m_at++ == '-' ? 1 : 0;
    }
    if (!hasSign)
        return value(slot);
    bool good = expression(slot, PowerPrecedence);
    for (; good && minuses > 0; --minuses)
        good = negate(slot, from);
    return good;
}

bool Parser::negate(quint32 slot, int from)
{
    const bool plain = operationRow(static_cast<quint32>(m_last))->precedence == NoPrecedence;
    if (plain)
        return put(slot, Op::Call, callOperand(1, Function::Negate));
    m_last = Op::Subtract;
    return m_program.subtractFromZero(from, slot);
}

bool Parser::value(quint32 slot)
{
    if (m_at == m_end)
        return false;
    if (isDigit(*m_at) || *m_at == '.')
        return number(slot);
    if (*m_at == '(')
        return group(slot);
    return atVariable() ? variable(slot) : call(slot);
}

bool Parser::number(quint32 slot)
{
    float value = 0;
    const auto [end, error] = std::from_chars(m_at, m_end, value);
    if (error == std::errc::result_out_of_range && isTooSmall({m_at, static_cast<std::size_t>(end - m_at)}))
        value = 0;
    else if (error != std::errc())
        return false;
    m_at = end;
    if (!put(slot, Op::LoadConstant, std::bit_cast<quint32>(value)))
        return false;
    if (!atVariable())
        return readOperator();
    return expression(slot + 1, PowerPrecedence) && put(slot, Op::Multiply);
}

bool Parser::variable(quint32 slot)
{
    m_at += VariablePrefix.size();
    quint32 index = 0;
    const char *begin = m_at;
    while (m_at != m_end && isDigit(*m_at) && m_at - begin < IndexDigits)
        index = index * 10 + static_cast<quint32>(*m_at++ - '0');
    return m_at - begin == IndexDigits && index > 0 && put(slot, Op::LoadVariable, index - 1) &&
           readOperator();
}

bool Parser::group(quint32 slot)
{
    if (++m_depth > DeepestNesting)
        return false;
    ++m_at;
    if (!expression(slot, LoosestPrecedence) || !take(')'))
        return false;
    --m_depth;
    return readOperator();
}

bool Parser::call(quint32 slot)
{
    const char *begin = m_at;
    while (m_at != m_end && (isLetter(*m_at) || isDigit(*m_at)))
        ++m_at;
    const FunctionRow *row = functionNamed({begin, static_cast<std::size_t>(m_at - begin)});
    skipBlanks();
    int count = 0;
    if (!row || ++m_depth > DeepestNesting || !take('(') || !arguments(slot, count))
        return false;
    --m_depth;
    const bool fits =
        row->arguments == SeveralArguments ? count >= SeveralArguments : count == row->arguments;
    return fits && put(slot, Op::Call, callOperand(count, row->code)) && readOperator();
}

bool Parser::arguments(quint32 slot, int &count)
{
    do {
        if (!expression(slot + static_cast<quint32>(count), LoosestPrecedence))
            return false;
        ++count;
    } while (take(','));
    return take(')');
}

// Always true: no operator may follow as well.
bool Parser::readOperator()
{
    skipBlanks();
    std::size_t length = 0;
    m_operator = symbolAt(rest(), length);
    m_at += length;
    return true;
}

void Parser::skipBlanks()
{
    while (m_at != m_end && isBlank(*m_at))
        ++m_at;
}

bool Parser::take(char c)
{
    const bool taken = m_at != m_end && *m_at == c;
    m_at += taken ? 1 : 0;
    return taken;
}

bool Parser::put(quint32 slot, Op code, quint32 operand)
{
    m_last = code;
    return m_program.append(slot, code, operand);
}

} // namespace

bool parse(std::string_view text, WordProgram &program) { return Parser(text, program).equation(); }

} // namespace variables::expression
