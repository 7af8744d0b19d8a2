#include "fuzz/targets.h"
#include "variables/expression/compiler.h"
#include "variables/expression/evaluator.h"
#include "variables/expression/rebuilder.h"
#include "variables/units.h"

namespace fuzz {

namespace {

using namespace variables::expression;

constexpr int Owner = 42;
constexpr qsizetype MostBytes = 257;

// What compiles runs to its end, and what is rebuilt from it compiles to the same bytes.
bool comesBack(const QString &equation, const platform::NumberLocale &locale)
{
    QByteArray program, again;
    QString text;
    if (!compile(equation, program, Owner, locale))
        return program.isEmpty();
    return program.size() <= MostBytes && Standard(program).status == RunStatus::Ended &&
           rebuildEquation(program, Owner, locale, text) && compile(text, again, Owner, locale) &&
           again == program;
}

bool isBounded(QByteArrayView program)
{
    QString text;
    const bool rebuilt = rebuildEquation(program, Owner, {}, text);
    return rebuilt ? text.size() <= qsizetype{LongestEquation} : text.isEmpty();
}

} // namespace

bool expression(QByteArrayView bytes)
{
    const QString text = QString::fromLatin1(bytes);
    Standard(bytes);
    variables::conversionProgram(text, Owner, {});
    return isBounded(bytes) && comesBack(text, {}) && comesBack(text, {",", ";"});
}

} // namespace fuzz
