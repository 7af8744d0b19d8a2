#pragma once

#include "common/colour.h"
#include "common/rounding.h"
#include "controls/geometry.h"
#include "platform/screen.h"

#include <QString>
#include <QStringList>

#include <algorithm>
#include <limits>
#include <span>
#include <string_view>
#include <variant>

namespace controls {

// What every family's values struct begins with.
struct ControlValues
{
    Box box;
};

// A property as it passes by name: whole numbers and colours, floats, text.
using PropertyValue = std::variant<qint32, float, QString>;

// One property: the names of its reader and writer and how they reach its member.
struct PropertyRow
{
    std::string_view reader;
    std::string_view writer; // empty for a read-only property
    PropertyValue (*get)(const ControlValues &, const platform::Screen &);
    void (*set)(ControlValues &, const PropertyValue &) = nullptr; // throws RunTimeError when it does not fit

    // The same row with another way of reading.
    constexpr PropertyRow readBy(PropertyValue (*reading)(const ControlValues &,
                                                          const platform::Screen &)) const
    {
        PropertyRow row = *this;
        row.get = reading;
        return row;
    }
};

// A family's properties and the order of its serialised array behind width and height.
struct PropertyTable
{
    std::span<const PropertyRow> rows;
    std::span<const std::string_view> serialised;

    // Null when there is none of this name.
    const PropertyRow *reader(std::string_view name) const;
    const PropertyRow *writer(std::string_view name) const;
};

// The flat array of texts: outer width and height in twips, then the table's order.
QStringList serialise(const PropertyTable &table, const ControlValues &values, const platform::Screen &screen,
                      const QString &decimalMark);

// The reverse. Each property keeps what its reader answers, so that values that were never set are settled.
// Throws RunTimeError when the array is too short or a text does not fit its property; the values may then be
// changed in part.
void deserialise(const PropertyTable &table, ControlValues &values, const QStringList &texts,
                 const platform::Screen &screen, const QString &decimalMark);

namespace detail {

template <typename T>
struct Member;
template <typename Values, typename T>
struct Member<T Values::*>
{
    using Owner = Values;
    using Type = T;
};

template <std::integral T>
PropertyValue toProperty(T value)
{
    return static_cast<qint32>(value);
}
inline PropertyValue toProperty(float value) { return value; }
inline PropertyValue toProperty(const common::Colour &value) { return static_cast<qint32>(value.packed()); }
inline PropertyValue toProperty(const QString &value) { return value; }

using common::toSingle;
double numberOf(const PropertyValue &value); // throws RunTimeError for text

template <std::integral T>
void fromProperty(const PropertyValue &value, T &member)
{
    member = common::toInteger<T>(numberOf(value));
}
inline void fromProperty(const PropertyValue &value, float &member) { member = toSingle(numberOf(value)); }
inline void fromProperty(const PropertyValue &value, common::Colour &member)
{
    member.setPacked(static_cast<quint32>(common::toInteger<qint32>(numberOf(value))));
}
void fromProperty(const PropertyValue &value, QString &member); // throws RunTimeError for a number

} // namespace detail

// The row of a member: property<&GaugeValues::curMax>("curMax", "newMax").
template <auto M>
constexpr PropertyRow property(std::string_view reader, std::string_view writer)
{
    using Owner = typename detail::Member<decltype(M)>::Owner;
    return {reader, writer,
            [](const ControlValues &values, const platform::Screen &) {
                return detail::toProperty(static_cast<const Owner &>(values).*M);
            },
            [](ControlValues &values, const PropertyValue &value) {
                detail::fromProperty(value, static_cast<Owner &>(values).*M);
            }};
}

// A read-only row that is worked out from the others.
constexpr PropertyRow computed(std::string_view reader,
                               PropertyValue (*get)(const ControlValues &, const platform::Screen &))
{
    return {reader, {}, get};
}

// Whether each name of a serialised order is a reader of the table: for static_assert beside the table.
constexpr bool refersToRows(std::span<const std::string_view> order, std::span<const PropertyRow> rows)
{
    return std::all_of(order.begin(), order.end(), [rows](std::string_view name) {
        return std::any_of(rows.begin(), rows.end(),
                           [name](const PropertyRow &row) { return row.reader == name; });
    });
}

} // namespace controls
