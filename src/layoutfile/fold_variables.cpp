#include "layoutfile/fold_variables.h"

#include "variables/expression/rebuilder.h"
#include "variables/units.h"

#include <algorithm>
#include <cmath>

namespace layoutfile {

namespace {

using variables::VariableRecord;

QByteArray storedPrograms(const std::vector<LayoutRecord> &records)
{
    QByteArray programs;
    for (const LayoutRecord &record : records) {
        if (const auto *stored = std::get_if<ProgramsRecord>(&record.body))
            programs = stored->data.bytes;
    }
    return programs;
}

// Empty when the entry has none or points outside the stored bytes.
QByteArray programOf(const VariableEntry &entry, const QByteArray &programs)
{
    const qsizetype offset = entry.programOffset;
    const qsizetype length = entry.programLength;
    if (entry.used == 0 || offset < 0 || offset > programs.size() || length > programs.size() - offset)
        return {};
    return programs.sliced(offset, length);
}

// A number that no user can have typed is not taken over.
void takeIfFinite(float value, float &field)
{
    if (std::isfinite(value))
        field = value;
}

class Folding
{
public:
    Folding(variables::Catalogue &catalogue, const platform::NumberLocale &locale)
        : m_catalogue(catalogue), m_locale(locale)
    {
    }

    void fold(const VariableEntry &entry, const QByteArray &program)
    {
        VariableRecord &variable = m_catalogue.live[static_cast<std::size_t>(entry.variable)];
        takeIfFinite(entry.smoothingTime, variable.SmoothingTime);
        takeIfFinite(entry.maximumRoc, variable.MaximumROC);
        if (!program.isEmpty())
            foldProgram(variable, entry.variable, program);
        variable.UseCustomTrans = variable.UseCustomTrans || isUserDefined(variable);
    }

private:
    static bool isUserDefined(const VariableRecord &variable)
    {
        return variable.VariableType == static_cast<qint32>(variables::VariableGroup::UserDefined);
    }

    void foldProgram(VariableRecord &variable, int index, const QByteArray &program)
    {
        QString equation;
        if (!variables::expression::rebuildEquation(program, index, m_locale, equation))
            return;
        if (!isUserDefined(variable) && takeMatchingUnit(variable, index, program))
            return;
        variable.UseCustomTrans = true;
        variable.CustomTransformation = equation;
    }

    bool takeMatchingUnit(VariableRecord &variable, int index, const QByteArray &program) const
    {
        const auto &allowed = variable.AllowTransformations;
        const auto match = std::find_if(allowed.begin(), allowed.end(), [&](const QString &unit) {
            const std::size_t row = variables::findUnit(m_catalogue.units, unit);
            const QString &conversion = m_catalogue.units[row].Conversion;
            return variables::conversionProgram(conversion, index, m_locale) == program;
        });
        if (match == allowed.end())
            return false;
        variable.ApplyTransformation = *match;
        variable.UseCustomTrans = false;
        return true;
    }

    variables::Catalogue &m_catalogue;
    const platform::NumberLocale &m_locale;
};

} // namespace

void foldVariables(const std::vector<LayoutRecord> &records, variables::Catalogue &catalogue,
                   const platform::NumberLocale &locale)
{
    const QByteArray programs = storedPrograms(records);
    Folding folding(catalogue, locale);
    for (const LayoutRecord &record : records) {
        const auto *entry = std::get_if<VariableEntry>(&record.body);
        if (entry && entry->variable >= 1 && entry->variable <= variables::LastIndex)
            folding.fold(*entry, programOf(*entry, programs));
    }
    variables::SetupVariables(catalogue);
    catalogue.staging = catalogue.live;
}

} // namespace layoutfile
