#pragma once

#include "common/number_parser.h"
#include "common/number_text.h"
#include "common/rounding.h"

namespace recorder {

// A number in a cell of a grid, which may hold any text while it is edited. Untouched it is exactly the
// number that it was made from.
class NumberCell
{
public:
    NumberCell(float value, const QString &decimalMark)
        : m_value(value), m_shown(common::shortestText(value, decimalMark)), m_text(m_shown)
    {
    }

    const QString &text() const { return m_text; }
    void type(const QString &text) { m_text = text; }
    // Throws RunTimeError for a text that is no number or does not fit.
    float value() const
    {
        return m_text == m_shown ? m_value : common::toSingle(common::requireNumber(m_text));
    }

private:
    float m_value;
    QString m_shown;
    QString m_text;
};

} // namespace recorder
