#include "layoutfile/record_codec.h"

#include "common/rounding.h"

#include <array>
#include <cmath>
#include <utility>

namespace layoutfile {

namespace {

using common::ByteReader;
using common::ByteWriter;

class FieldWriter
{
public:
    explicit FieldWriter(ByteWriter &out) : m_out(out) {}

    template <typename... Fields>
    void operator()(const Fields &...fields)
    {
        (put(fields), ...);
    }
    void sameLength(const std::vector<float> &a, const std::vector<float> &b)
    {
        m_out.put(static_cast<quint8>(a.size()));
        for (const float value : a)
            m_out.put(value);
        for (const float value : b)
            m_out.put(value);
    }
    void run(const QByteArray &bytes, qsizetype) { m_out.put(QByteArrayView(bytes)); }

private:
    template <common::Scalar T>
    void put(T value)
    {
        m_out.put(value);
    }
    void put(const common::Yuv &c) { (*this)(c.y, c.u, c.v); }
    template <int N>
    void put(const FixedText<N> &field)
    {
        m_out.putFixedText(field.text, N);
    }
    template <int N>
    void put(const PaddedText<N> &field)
    {
        m_out.put(QByteArrayView(field.text.leftJustified(N, ' ', true)));
    }
    void put(const Bulk &bulk) { m_out.put(QByteArrayView(bulk.bytes)); }

    ByteWriter &m_out;
};

class FieldReader
{
public:
    FieldReader(ByteReader &in, qint32 size) : m_in(in), m_size(size) {}

    template <typename... Fields>
    void operator()(Fields &...fields)
    {
        (get(fields), ...);
    }
    void sameLength(std::vector<float> &a, std::vector<float> &b)
    {
        const std::size_t count = m_in.get<quint8>();
        for (std::vector<float> *list : {&a, &b}) {
            list->resize(count);
            for (float &value : *list)
                get(value);
        }
    }
    void run(QByteArray &bytes, qsizetype size) { bytes = m_in.get(size).toByteArray(); }

private:
    template <common::Scalar T>
    void get(T &value)
    {
        value = m_in.get<T>();
    }
    // Nobody can have entered a number that is not finite, and no field could show it.
    void get(float &value)
    {
        value = m_in.get<float>();
        if (!std::isfinite(value))
            value = 0;
    }
    void get(common::Yuv &c) { (*this)(c.y, c.u, c.v); }
    template <int N>
    void get(FixedText<N> &field)
    {
        field.text = common::cutAtNul(m_in.get(N));
    }
    template <int N>
    void get(PaddedText<N> &field)
    {
        field.text = m_in.get(N).toByteArray();
    }
    void get(Bulk &bulk) { bulk.bytes = m_in.get(m_size).toByteArray(); }

    ByteReader &m_in;
    qint32 m_size;
};

template <typename Body>
std::optional<RecordBody> decodeAs(qint32 size, ByteReader &reader)
{
    Body body;
    Body::visit(body, FieldReader(reader, size));
    if (reader.failed())
        return std::nullopt;
    return body;
}

using Decoder = std::optional<RecordBody> (*)(qint32, ByteReader &);
constexpr std::size_t TypeCount = std::variant_size_v<RecordBody>;

// Indexed by type code.
template <std::size_t... I>
constexpr std::array<Decoder, TypeCount + 1> decoderTable(std::index_sequence<I...>)
{
    std::array<Decoder, TypeCount + 1> table{};
    ((table[static_cast<std::size_t>(std::variant_alternative_t<I, RecordBody>::Type)] =
          &decodeAs<std::variant_alternative_t<I, RecordBody>>),
     ...);
    return table;
}

constexpr auto Decoders = decoderTable(std::make_index_sequence<TypeCount>());

} // namespace

RecordType LayoutRecord::type() const
{
    return std::visit([](const auto &record) { return std::decay_t<decltype(record)>::Type; }, body);
}

void encodePayload(const RecordBody &body, ByteWriter &out)
{
    std::visit([&](const auto &record) { record.visit(record, FieldWriter(out)); }, body);
}

qint32 statedSize(const RecordBody &body, qsizetype payloadSize)
{
    // Half of the true payload: deliberate, and harmless since no record follows this group.
    constexpr qint32 CustomDialStatedSize = 83;
    constexpr qsizetype IconFields = 10;
    // Twice the Y plane where one and a half times is stored: deliberate.
    if (const auto *icon = std::get_if<SpecialIconRecord>(&body))
        return static_cast<qint32>(IconFields + 2 * icon->lumaSize());
    if (std::holds_alternative<CustomDialRecord>(body))
        return CustomDialStatedSize;
    return common::toInteger<qint32>(static_cast<double>(payloadSize));
}

std::optional<RecordBody> decodePayload(qint16 type, qint32 size, ByteReader &reader)
{
    if (type < 1 || static_cast<std::size_t>(type) >= Decoders.size())
        return std::nullopt;
    return Decoders[static_cast<std::size_t>(type)](size, reader);
}

} // namespace layoutfile
