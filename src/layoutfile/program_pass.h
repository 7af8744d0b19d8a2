#pragma once

#include "layoutfile/record_types.h"
#include "layoutfile/used_variables.h"
#include "platform/locale.h"

namespace layoutfile {

// Turns the enabled variables into their entries and the programs that the recorder runs for them: the
// equation of a used variable that has one, else the conversion of its unit. Goes through them in catalogue
// order; the used marks have to be final.
class ProgramPass
{
public:
    ProgramPass(const variables::Catalogue &catalogue, const UsedVariables &used,
                const platform::NumberLocale &locale);

    // The entry of the next enabled variable. One whose raw value is shown, whose equation does not compile
    // or is longer than the length byte can say goes out without a program: offset -1, length 1 when it is
    // used.
    VariableEntry entry(int variable);

    // All programs back to back; the offsets of the entries count from here.
    const QByteArray &programs() const { return m_programs; }

private:
    QByteArray programOf(int variable) const;

    const variables::Catalogue &m_catalogue;
    const UsedVariables &m_used;
    const platform::NumberLocale &m_locale;
    QByteArray m_programs;
};

} // namespace layoutfile
