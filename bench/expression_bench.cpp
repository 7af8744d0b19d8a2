// An equation to byte code, with its test run, beside the parser and first evaluation of muParser on the same
// text. Limit: a quarter of its time. (Its parser object and the variables stand ready before; ours has
// nothing to make ready.) And the programs of a whole layout in which every variable is used: what a save
// adds to its writing, limit 20 ms.

#include "layoutfile/program_pass.h"
#include "variables/definition_file.h"
#include "variables/expression/compiler.h"

#include <QFile>

#include <array>
#include <benchmark/benchmark.h>
#include <muParser.h>

namespace {

const platform::NumberLocale Locale;
constexpr int Owner = 42;

constexpr std::array Equations{
    "x*0.621371192",
    "(x-101.325)*0.145037738",
    "sqrt(var_0015^2+var_0016^2)",
    "44330.8*(1-(x/101.325)^0.190263)",
    "1/(0.00335402+ln(x/(5-x)/2.2)/3500)-273.15",
    "max(var_0300,var_0301,var_0302,var_0303)-min(var_0300,var_0301,var_0302,var_0303)",
    "100*(var_0302+var_0303-var_0300-var_0301)/(var_0300+var_0301)",
    "(1000*(9.81*var_0016+0.15)+0.6*0.7*(var_0002/3.6)^2)*var_0002/3600",
};

void compileAndRun(benchmark::State &state)
{
    const QString equation = QString::fromLatin1(Equations[static_cast<std::size_t>(state.range())]);
    state.SetLabel(equation.toStdString());
    for (auto _ : state) {
        QByteArray program;
        if (!variables::expression::compile(equation, program, Owner, Locale))
            state.SkipWithError("does not compile");
        benchmark::DoNotOptimize(program);
    }
}
BENCHMARK(compileAndRun)->DenseRange(0, Equations.size() - 1);

void compileAndRunPeer(benchmark::State &state)
{
    const std::string equation = Equations[static_cast<std::size_t>(state.range())];
    double value = 0;
    mu::Parser parser;
    for (const char *name :
         {"x", "var_0002", "var_0015", "var_0016", "var_0300", "var_0301", "var_0302", "var_0303"})
        parser.DefineVar(name, &value);
    for (auto _ : state) {
        parser.SetExpr(equation);
        benchmark::DoNotOptimize(parser.Eval());
    }
}
BENCHMARK(compileAndRunPeer)->DenseRange(0, Equations.size() - 1);

// The shipped catalogue with an equation in each user variable.
variables::Catalogue fullCatalogue()
{
    variables::Catalogue catalogue;
    QFile file(QStringLiteral(MORVEL_PROGRAM_DIR "/QLM6ConfigToolVars.cfg"));
    if (file.open(QIODevice::ReadOnly))
        variables::loadDefinitions(file.readAll(), catalogue);
    for (int i = variables::FirstUserVariable; i <= variables::LastUserVariable; ++i)
        catalogue.live[static_cast<std::size_t>(i)].CustomTransformation =
            QString::fromLatin1(Equations.back());
    return catalogue;
}

void wholeLayout(benchmark::State &state)
{
    const variables::Catalogue catalogue = fullCatalogue();
    layoutfile::UsedVariables used;
    for (int i = 1; i <= variables::LastIndex; ++i)
        used.mark(i);
    for (auto _ : state) {
        layoutfile::ProgramPass pass(catalogue, used, Locale);
        for (int i = 1; i <= variables::LastIndex; ++i) {
            if (catalogue.live[static_cast<std::size_t>(i)].Enabled)
                benchmark::DoNotOptimize(pass.entry(i));
        }
    }
}
BENCHMARK(wholeLayout);

} // namespace

BENCHMARK_MAIN();
