#include "variables/transformation.h"

#include "variables/expression/compiler.h"

namespace variables {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype LongestUnits = 3; // deliberate
const QString EmptyEquation = u"0"_s;

} // namespace

QString transformationTitle(const VariableRecord &record)
{
    const QString caption = hasOwnEquation(record) ? u"Edit equation for "_s : u"Set conversion for "_s;
    return caption + record.BaseName;
}

TransformationForm transformationOf(const VariableRecord &record)
{
    return {hasOwnEquation(record) || record.UseCustomTrans,
            static_cast<int>(record.AllowTransformations.indexOf(record.ApplyTransformation)),
            record.CustomTransformation, record.CustomUnits};
}

QStringList unitChoices(const VariableRecord &record, const UnitTable &units)
{
    QStringList texts;
    for (const QString &name : record.AllowTransformations) {
        const QString &description = units[findUnit(units, name)].Description;
        texts.append(description.isEmpty() ? name : description);
    }
    return texts;
}

QString unitLabel(const VariableRecord &record, int row, const UnitTable &units)
{
    const QString name = record.AllowTransformations.value(row);
    return '['_L1 + units[findUnit(units, name)].Uniit + ']'_L1;
}

std::optional<QString> validate(const TransformationForm &form, int index,
                                const platform::NumberLocale &locale)
{
    QByteArray program;
    if (form.custom && !form.equation.isEmpty() &&
        !expression::compile(form.equation, program, index, locale))
        return EquationError;
    return std::nullopt;
}

void storeTransformation(const TransformationForm &form, VariableRecord &record, const UnitTable &units)
{
    record.UseCustomTrans = form.custom;
    if (form.custom)
        record.CustomUnits = form.units.left(LongestUnits);
    else if (form.unit >= 0 && form.unit < record.AllowTransformations.size())
        record.ApplyTransformation = record.AllowTransformations[form.unit];
    record.CustomTransformation = form.equation.isEmpty() ? EmptyEquation : form.equation;
    record.DisplayName = displayName(record, units);
}

} // namespace variables
