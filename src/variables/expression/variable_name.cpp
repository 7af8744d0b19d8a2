#include "variables/expression/variable_name.h"

#include "common/number_text.h"
#include "common/rounding.h"

#include <QStringList>

namespace variables::expression {

namespace {

const QString Prefix = QString::fromLatin1(VariablePrefix.data(), qsizetype{VariablePrefix.size()});

} // namespace

QString variableName(int index) { return Prefix + QString::number(index).rightJustified(IndexDigits, u'0'); }

QList<int> namedVariables(const QString &equation)
{
    QList<int> indices;
    const QStringList pieces = equation.split(Prefix, Qt::KeepEmptyParts, Qt::CaseInsensitive);
    for (const QString &piece : pieces.sliced(1))
        indices.append(common::toIntegerClamped<int>(common::leadingNumber(piece.left(IndexDigits))));
    return indices;
}

} // namespace variables::expression
