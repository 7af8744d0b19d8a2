#include "layoutfile/used_variables.h"

#include "variables/expression/variable_name.h"

namespace layoutfile {

namespace {

constexpr qint32 AlwaysStored = 10;

void markNamed(UsedVariables &used, const QString &equation)
{
    for (const int variable : variables::expression::namedVariables(equation))
        used.mark(variable);
}

} // namespace

void UsedVariables::mark(qint32 variable)
{
    if (variable > 0 && variable <= variables::LastIndex)
        m_used[static_cast<std::size_t>(variable)] = true;
}

void markSettings(UsedVariables &used, const recorder::RecorderSettings &settings)
{
    used.mark(AlwaysStored);
    for (const recorder::ChapterCondition &chapter : settings.ChapterList)
        used.mark(chapter.variable);
    for (const recorder::RecordingTrigger *trigger : {&settings.autoStart, &settings.autoStop}) {
        if (trigger->isActive())
            used.mark(trigger->variable);
    }
}

void markReferences(UsedVariables &used, const variables::VariableTable &table)
{
    for (int index = variables::FirstUserVariable; index <= variables::LastUserVariable; ++index) {
        const variables::VariableRecord &record = table[index];
        if (used.isUsed(index) && record.UseCustomTrans)
            markNamed(used, record.CustomTransformation);
    }
}

} // namespace layoutfile
