// The shipped definition file, read and written, beside Qt's own stream with the same fields of the same
// records.

#include "bench_support.h"
#include "platform/file_replace.h"
#include "variables/definition_file.h"

#include <QDataStream>
#include <QIODevice>

namespace {

using bench::Times;
using variables::Catalogue;
using variables::UnitRecord;
using variables::VariableRecord;

template <typename Stream, typename Record>
void unitFields(Stream &&field, Record &r)
{
    field(r.UnitName, r.Description, r.Conversion, r.Uniit);
}

template <typename Stream, typename Record>
void variableFields(Stream &&field, Record &r)
{
    field(r.DisplayName, r.PhysicalName, r.BaseName, r.IndexNumber, r.Enabled, r.AlwaysOn, r.Available,
          r.VariableType, r.DefaultMin, r.DefaultMax, r.FilterDesign, r.FilterLowVal, r.FilterHighVal,
          r.FilterRipple, r.FilterOrder, r.ApplyTransformation, r.AllowTransformations, r.UseCustomTrans,
          r.CustomTransformation, r.CustomUnits, r.Description, r.SmoothingTime, r.MaximumROC, r.calculus,
          r.Misc);
}

QByteArray streamOut(const Catalogue &catalogue)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setFloatingPointPrecision(QDataStream::SinglePrecision);
    const auto write = [&stream](const auto &...values) { (stream << ... << values); };
    write(static_cast<qint32>(catalogue.units.size()), static_cast<qint32>(catalogue.live.size()));
    for (const UnitRecord &unit : catalogue.units)
        unitFields(write, unit);
    for (const VariableRecord &record : catalogue.live)
        variableFields(write, record);
    return bytes;
}

void streamIn(const QByteArray &bytes, Catalogue &catalogue)
{
    QDataStream stream(bytes);
    stream.setFloatingPointPrecision(QDataStream::SinglePrecision);
    const auto read = [&stream](auto &...values) { (stream >> ... >> values); };
    qint32 units = 0;
    qint32 variables = 0;
    read(units, variables);
    catalogue.units.resize(static_cast<std::size_t>(units));
    catalogue.live.resize(static_cast<std::size_t>(variables));
    for (UnitRecord &unit : catalogue.units)
        unitFields(read, unit);
    for (VariableRecord &record : catalogue.live)
        variableFields(read, record);
}

QByteArray shippedFile()
{
    return platform::readFile(QStringLiteral(MORVEL_PROGRAM_DIR "/defaults/QLM6ConfigToolVars.cfg"));
}

Catalogue shippedCatalogue()
{
    Catalogue catalogue;
    variables::loadDefinitions(shippedFile(), catalogue);
    return catalogue;
}

// Each into a table of its own, as at a start.
void readDefinitions(benchmark::State &state)
{
    const QByteArray file = shippedFile();
    const QByteArray streamed = streamOut(shippedCatalogue());
    Times own;
    Times peer;
    for (auto _ : state) {
        Catalogue catalogue;
        Catalogue streamedInto;
        state.SetIterationTime(own.measure([&] { variables::loadDefinitions(file, catalogue); }));
        peer.measure([&] { streamIn(streamed, streamedInto); });
        if (catalogue.live != streamedInto.live)
            state.SkipWithError("the records differ");
    }
    bench::statePeer(state, own, peer);
    state.SetBytesProcessed(state.iterations() * file.size());
}

void writeDefinitions(benchmark::State &state)
{
    const Catalogue catalogue = shippedCatalogue();
    Times own;
    Times peer;
    qsizetype size = 0;
    for (auto _ : state) {
        state.SetIterationTime(own.measure([&] { size = variables::saveDefinitions(catalogue).size(); }));
        peer.measure([&] { benchmark::DoNotOptimize(streamOut(catalogue)); });
    }
    bench::statePeer(state, own, peer);
    state.SetBytesProcessed(state.iterations() * size);
}

BENCHMARK(readDefinitions)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(writeDefinitions)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
