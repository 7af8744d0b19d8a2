#include "layoutfile/program_pass.h"

#include "variables/expression/compiler.h"
#include "variables/units.h"

#include <limits>

namespace layoutfile {

namespace {

constexpr qint32 NoProgram = -1;
constexpr quint8 NoProgramLength = 1; // of used variables; counts in no offset and no sum
constexpr qsizetype LongestProgram = std::numeric_limits<quint8>::max();

} // namespace

ProgramPass::ProgramPass(const variables::Catalogue &catalogue, const UsedVariables &used,
                         const platform::NumberLocale &locale)
    : m_catalogue(catalogue), m_used(used), m_locale(locale)
{
}

VariableEntry ProgramPass::entry(int variable)
{
    const variables::VariableRecord &record = m_catalogue.live[variable];
    VariableEntry entry{variable, 0, record.SmoothingTime, record.MaximumROC, NoProgram, 0};
    if (!m_used.isUsed(variable))
        return entry;
    entry.used = 1;
    entry.programLength = NoProgramLength;
    const QByteArray program = programOf(variable);
    if (!program.isEmpty() && program.size() <= LongestProgram) {
        entry.programOffset = static_cast<qint32>(m_programs.size());
        entry.programLength = static_cast<quint8>(program.size());
        m_programs += program;
    }
    return entry;
}

// Empty when the variable needs none or gets none.
QByteArray ProgramPass::programOf(int variable) const
{
    const variables::VariableRecord &record = m_catalogue.live[variable];
    if (!record.UseCustomTrans)
        return variables::conversionProgram(variables::conversionInForce(record, m_catalogue.units), variable,
                                            m_locale);
    QByteArray program;
    variables::expression::compile(record.CustomTransformation, program, variable, m_locale);
    return program;
}

} // namespace layoutfile
