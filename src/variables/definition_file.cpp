#include "variables/definition_file.h"

#include "common/bytes.h"
#include "common/code_page.h"
#include "common/run_time_error.h"

#include <algorithm>
#include <cmath>

namespace variables {

namespace {

constexpr qint32 Trailer = 7576;
constexpr quint16 OneDimension = 1;
constexpr qint16 FileTrue = -1;
// The fewest bytes that a row can take in a file: what a bound may promise is measured against what is left.
constexpr qsizetype SmallestUnit = 8;
constexpr qsizetype SmallestVariable = 73;
constexpr qsizetype SmallestText = 2;

// One declaration of a record's fields, in file order, for reading and for writing.
template <typename Record, typename Field>
void visitUnit(Record &unit, Field &&field)
{
    field(unit.UnitName);
    field(unit.Description);
    field(unit.Conversion);
    field(unit.Uniit);
}

template <typename Record, typename Field>
void visitVariable(Record &record, Field &&field)
{
    field(record.DisplayName);
    field(record.PhysicalName);
    field(record.BaseName);
    field(record.IndexNumber);
    field(record.Enabled);
    field(record.AlwaysOn);
    field(record.Available);
    field(record.VariableType);
    field(record.DefaultMin);
    field(record.DefaultMax);
    field(record.FilterDesign);
    field(record.FilterLowVal);
    field(record.FilterHighVal);
    field(record.FilterRipple);
    field(record.FilterOrder);
    field(record.ApplyTransformation);
    field(record.AllowTransformations);
    field(record.UseCustomTrans);
    field(record.CustomTransformation);
    field(record.CustomUnits);
    field(record.Description);
    field(record.SmoothingTime);
    field(record.MaximumROC);
    field(record.calculus);
    field(record.Misc);
}

void require(bool wellFormed)
{
    if (!wellFormed)
        throw common::RunTimeError(QStringLiteral("The variable file ends early or is ill-formed"));
}

class FieldReader
{
public:
    explicit FieldReader(common::ByteReader &reader) : m_reader(reader) {}

    template <common::Scalar T>
    void operator()(T &value)
    {
        value = m_reader.get<T>();
    }
    void operator()(float &value)
    {
        value = m_reader.get<float>();
        if (!std::isfinite(value))
            value = 0;
    }
    void operator()(bool &value) { value = m_reader.get<qint16>() != 0; }
    void operator()(QString &text)
    {
        const auto length = m_reader.get<quint16>();
        text = length == 0 ? QString() : common::fromCodePage(m_reader.get(length));
    }
    // Neighbours often allow the same long list of units; they then share one.
    void operator()(QStringList &list)
    {
        const QByteArrayView rest = m_reader.rest();
        if (!m_lastList.isEmpty() && rest.startsWith(m_lastList)) {
            m_reader.get(m_lastList.size());
            list = m_shared;
            return;
        }
        readList(list);
        m_lastList = rest.first(rest.size() - m_reader.remaining());
        m_shared = list;
    }

private:
    void readList(QStringList &list)
    {
        const auto dimensions = m_reader.get<quint16>();
        if (dimensions == 0)
            return;
        const auto count = m_reader.get<qint32>();
        m_reader.get<qint32>(); // lower bound, always 0
        require(dimensions == OneDimension && count >= 0 && count <= m_reader.remaining() / SmallestText);
        list.reserve(count);
        for (qint32 i = 0; i < count; ++i) {
            QString text;
            (*this)(text);
            list.append(text);
        }
    }

    common::ByteReader &m_reader;
    QByteArrayView m_lastList;
    QStringList m_shared;
};

class FieldWriter
{
public:
    explicit FieldWriter(common::ByteWriter &writer) : m_writer(writer) {}

    template <common::Scalar T>
    void operator()(const T &value)
    {
        m_writer.put(value);
    }
    void operator()(const bool &value) { m_writer.put<qint16>(value ? FileTrue : qint16{0}); }
    void operator()(const QString &text)
    {
        const QByteArray bytes = common::toCodePage(text).left(0xFFFF);
        m_writer.put(static_cast<quint16>(bytes.size()));
        m_writer.put(QByteArrayView(bytes));
    }
    void operator()(const QStringList &list)
    {
        // A list without elements is an array that was never allocated: no dimensions, and nothing follows.
        m_writer.put(list.isEmpty() ? quint16{0} : OneDimension);
        if (list.isEmpty())
            return;
        m_writer.put(static_cast<qint32>(list.size()));
        m_writer.put(qint32{0});
        for (const QString &text : list)
            (*this)(text);
    }

private:
    common::ByteWriter &m_writer;
};

// The tables are read in three steps that answer false when the file is corrupted and throw when it ends
// early or is ill-formed.
bool readUnits(common::ByteReader &reader, FieldReader &field, UnitTable &units)
{
    const auto bound = reader.get<qint32>();
    if (bound < 0)
        return false;
    require(bound < reader.remaining() / SmallestUnit);
    units.resize(static_cast<std::size_t>(bound) + 1);
    for (UnitRecord &unit : units)
        visitUnit(unit, field);
    require(!reader.failed());
    return true;
}

// A record and how many slots in a row hold it: thousands of slots are empty.
struct Run
{
    VariableRecord record;
    qint32 slotCount = 1;
};

// A row that repeats the bytes of the one before is not read again.
bool readVariables(common::ByteReader &reader, FieldReader &field, std::vector<Run> &runs)
{
    const auto bound = reader.get<qint32>();
    if (bound < 0 || bound > LastIndex)
        return false;
    require(bound < reader.remaining() / SmallestVariable);
    QByteArrayView row;
    for (qint32 i = 0; i <= bound; ++i) {
        const QByteArrayView rest = reader.rest();
        if (!row.isEmpty() && rest.startsWith(row)) {
            reader.get(row.size());
            ++runs.back().slotCount;
            continue;
        }
        visitVariable(runs.emplace_back().record, field);
        require(!reader.failed());
        row = rest.first(rest.size() - reader.remaining());
    }
    return true;
}

bool readTrailer(common::ByteReader &reader)
{
    const auto trailer = reader.get<qint32>();
    require(!reader.failed());
    return trailer == Trailer;
}

// A file of fewer rows leaves the other slots empty.
void fillTable(std::vector<Run> runs, VariableTable &table)
{
    table.resize(LastIndex + 1);
    auto slot = table.begin();
    for (Run &run : runs) {
        slot = std::fill_n(slot, run.slotCount - 1, run.record);
        *slot++ = std::move(run.record);
    }
    std::fill(slot, table.end(), VariableRecord());
}

// A record that repeats the one before takes its bytes.
void writeVariables(common::ByteWriter &writer, FieldWriter &field, const VariableTable &table)
{
    QByteArray row;
    for (auto record = table.cbegin(); record != table.cend(); ++record) {
        if (record != table.cbegin() && *record == *std::prev(record)) {
            writer.put(QByteArrayView(row));
            continue;
        }
        const qsizetype begin = writer.size();
        visitVariable(*record, field);
        row = writer.bytes().sliced(begin);
    }
}

} // namespace

DefinitionStatus loadDefinitions(const QByteArray &bytes, Catalogue &catalogue)
{
    common::ByteReader reader(bytes);
    FieldReader field(reader);
    UnitTable units;
    std::vector<Run> runs;
    if (!readUnits(reader, field, units) || !readVariables(reader, field, runs) || !readTrailer(reader))
        return DefinitionStatus::Corrupted;
    catalogue.units = std::move(units);
    catalogue.staging = {}; // so that the slots are filled where they are
    fillTable(std::move(runs), catalogue.live);
    SetupVariables(catalogue);
    catalogue.definitionsLost = false;
    return DefinitionStatus::Loaded;
}

QByteArray saveDefinitions(const Catalogue &catalogue)
{
    common::ByteWriter writer;
    FieldWriter field(writer);
    writer.reserve(static_cast<qsizetype>(catalogue.live.size()) * 128);
    writer.put(static_cast<qint32>(catalogue.units.size()) - 1);
    for (const UnitRecord &unit : catalogue.units)
        visitUnit(unit, field);
    writer.put(static_cast<qint32>(catalogue.live.size()) - 1);
    writeVariables(writer, field, catalogue.live);
    writer.put(Trailer);
    return writer.bytes();
}

} // namespace variables
