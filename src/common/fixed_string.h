#pragma once

#include <QString>

namespace common {

// Text of a fixed width: cut or padded with blanks to N characters whenever it is set.
template <int N>
class FixedString
{
public:
    FixedString(const QString &text = {}) : m_text(text.leftJustified(N, QLatin1Char(' '), true)) {}
    operator const QString &() const { return m_text; }
    bool operator==(const FixedString &) const = default;

private:
    QString m_text;
};

} // namespace common
