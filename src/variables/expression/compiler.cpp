#include "variables/expression/compiler.h"

#include "variables/expression/evaluator.h"
#include "variables/expression/parser.h"
#include "variables/expression/string_building.h"

namespace variables::expression {

int expressionLayerVersion() { return 3; }

bool compile(const QString &text, QByteArray &bytes, int variableIndex, const platform::NumberLocale &locale)
{
    WordProgram program;
    return parse(StringBuilding(text, variableIndex, locale), program) &&
           Standard(program).status == RunStatus::Ended && Compressed(program, bytes);
}

} // namespace variables::expression
