#include "layoutfile/fold_variables.h"

#include "layoutfile/layout_file.h"
#include "variables/expression/rebuilder.h"
#include "variables/units.h"

#include <QScopeGuard>

#include <algorithm>

namespace layoutfile {

namespace {

using variables::VariableRecord;

// Empty when the entry has none or points outside the stored bytes.
QByteArray programOf(const VariableEntry &entry, const QByteArray &programs)
{
    const qsizetype offset = entry.programOffset;
    const qsizetype length = entry.programLength;
    if (entry.used == 0 || offset < 0 || offset > programs.size() || length > programs.size() - offset)
        return {};
    return programs.sliced(offset, length);
}

// Whether the text is one that a user can have typed. A program without a result leaves it empty, and a
// constant in it that is not finite has a word for its number.
bool isEquation(const QString &text)
{
    return !text.isEmpty() && !text.contains(QLatin1String("NAN")) && !text.contains(QLatin1String("INF"));
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
        VariableRecord &variable = m_catalogue.live[entry.variable];
        variable.SmoothingTime = entry.smoothingTime;
        variable.MaximumROC = entry.maximumRoc;
        if (!program.isEmpty())
            foldProgram(variable, entry.variable, program);
        else if (entry.used == 1 && entry.programOffset < 0)
            takeRawUnit(variable);
        variable.UseCustomTrans = variable.UseCustomTrans || isUserDefined(variable);
        variables::normalise(variable, entry.variable, m_catalogue.units);
    }

private:
    static bool isUserDefined(const VariableRecord &variable)
    {
        return variable.VariableType == static_cast<qint32>(variables::VariableGroup::UserDefined);
    }

    void foldProgram(VariableRecord &variable, int index, const QByteArray &program)
    {
        QString equation;
        if (!variables::expression::rebuildEquation(program, index, m_locale, equation) ||
            !isEquation(equation))
            return;
        if (!isUserDefined(variable) && takeMatchingUnit(variable, index, program))
            return;
        variable.UseCustomTrans = true;
        variable.CustomTransformation = equation;
    }

    bool takeMatchingUnit(VariableRecord &variable, int index, const QByteArray &program) const
    {
        const bool taken = takeFirstUnit(variable, [&](const QString &conversion) {
            return variables::conversionProgram(conversion, index, m_locale) == program;
        });
        if (taken)
            variable.UseCustomTrans = false;
        return taken;
    }

    // The raw value was shown: in the unit in force, when that is the raw one, else in the first that is.
    void takeRawUnit(VariableRecord &variable) const
    {
        const auto isRaw = [](const QString &conversion) {
            return variables::readConversion(conversion).isIdentity;
        };
        const bool hasOwnEquation = isUserDefined(variable) || variable.UseCustomTrans;
        if (!hasOwnEquation && !isRaw(variables::conversionInForce(variable, m_catalogue.units)))
            takeFirstUnit(variable, isRaw);
    }

    // The first allowed unit with such a conversion comes into force; false when there is none.
    template <typename Accepts>
    bool takeFirstUnit(VariableRecord &variable, Accepts &&accepts) const
    {
        const auto &allowed = variable.AllowTransformations;
        const auto match = std::find_if(allowed.begin(), allowed.end(), [&](const QString &unit) {
            return accepts(m_catalogue.units[variables::findUnit(m_catalogue.units, unit)].Conversion);
        });
        if (match == allowed.end())
            return false;
        variable.ApplyTransformation = *match;
        return true;
    }

    variables::Catalogue &m_catalogue;
    const platform::NumberLocale &m_locale;
};

} // namespace

void foldVariables(const std::vector<LayoutRecord> &records, variables::Catalogue &catalogue,
                   const platform::NumberLocale &locale)
{
    const QByteArray programs = bulkOf<ProgramsRecord>(records);
    catalogue.staging = {}; // so that the slots are changed where they are
    const auto bothSame = qScopeGuard([&catalogue] { catalogue.staging = catalogue.live; });
    Folding folding(catalogue, locale);
    for (const LayoutRecord &record : records) {
        const auto *entry = std::get_if<VariableEntry>(&record.body);
        if (entry && entry->variable >= 1 && entry->variable <= variables::LastIndex)
            folding.fold(*entry, programOf(*entry, programs));
    }
}

} // namespace layoutfile
