#pragma once

#include "common/colour.h"
#include "common/fixed_string.h"
#include "common/rounding.h"
#include "controls/geometry.h"
#include "platform/screen.h"

#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>

#include <span>
#include <string_view>
#include <variant>

namespace controls {

// What every family's values struct begins with.
struct ControlValues
{
    Box box;
    common::Colour backColour; // of the canvas, as the host gave it
};

// A property as it passes by name: whole numbers and colours, floats, text, pictures.
using PropertyValue = std::variant<qint32, float, QString, QImage>;
enum class PropertyKind { Whole, Single, Text, Picture }; // the alternatives, in order

// One property: the names of its reader and writer and how they reach its member. Rows without names are
// elements of the serialised array alone.
struct PropertyRow
{
    std::string_view reader;
    std::string_view writer; // empty for a read-only property
    PropertyKind kind;
    bool isSerialised;
    PropertyValue (*get)(const ControlValues &, const platform::Screen &);
    void (*set)(ControlValues &, const PropertyValue &) = nullptr; // throws RunTimeError when it does not fit
    std::string_view picture{}; // reader of the picture of which it names a copy in the picture folder

    // The same row with another way of reading.
    constexpr PropertyRow readBy(PropertyValue (*reading)(const ControlValues &,
                                                          const platform::Screen &)) const
    {
        PropertyRow row = *this;
        row.get = reading;
        return row;
    }
    // The same row, as the file name of a picture's copy.
    constexpr PropertyRow namesCopyOf(std::string_view pictureReader) const
    {
        PropertyRow row = *this;
        row.picture = pictureReader;
        return row;
    }
    // The same row, left out of the serialised array.
    constexpr PropertyRow notSerialised() const
    {
        PropertyRow row = *this;
        row.isSerialised = false;
        return row;
    }
};

// A family's properties in the order of its serialised array, after width and height.
struct PropertyTable
{
    std::span<const PropertyRow> rows;

    // Null when there is none of this name.
    const PropertyRow *reader(std::string_view name) const;
    const PropertyRow *writer(std::string_view name) const;
};

// An element of the serialised array that names a picture's copy.
struct CopyElement
{
    qsizetype element;
    std::string_view picture; // its reader
};
QList<CopyElement> copyElements(const PropertyTable &table);

// The flat array of texts: outer width and height in twips, then the serialised rows.
QStringList serialise(const PropertyTable &table, const ControlValues &values, const platform::Screen &screen,
                      const QString &decimalMark);

// The reverse, into the members as they stand. Throws RunTimeError when the array is too short or a text does
// not fit its property; the values may then be changed in part.
void deserialise(const PropertyTable &table, ControlValues &values, const QStringList &texts,
                 const QString &decimalMark);

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
inline PropertyValue toProperty(const QImage &value) { return value; }

using common::toSingle;
double numberOf(const PropertyValue &value); // throws RunTimeError for what is no number

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
// These throw RunTimeError for every other kind.
void fromProperty(const PropertyValue &value, QString &member);
void fromProperty(const PropertyValue &value, QImage &member);
template <int N>
void fromProperty(const PropertyValue &value, common::FixedString<N> &member)
{
    QString text;
    fromProperty(value, text);
    member = text;
}

template <typename T>
constexpr PropertyKind kindOf()
{
    if constexpr (std::is_same_v<T, float>)
        return PropertyKind::Single;
    else if constexpr (std::is_same_v<T, QImage>)
        return PropertyKind::Picture;
    else if constexpr (std::is_convertible_v<const T &, const QString &>)
        return PropertyKind::Text;
    else
        return PropertyKind::Whole;
}

} // namespace detail

// The row of a member: property<&GaugeValues::curMax>("curMax", "newMax"). Pictures are not serialised. The
// owner is to be named where the member is that of another base.
template <auto M, typename Owner = typename detail::Member<decltype(M)>::Owner>
constexpr PropertyRow property(std::string_view reader, std::string_view writer)
{
    constexpr PropertyKind Kind = detail::kindOf<typename detail::Member<decltype(M)>::Type>();
    return {reader,
            writer,
            Kind,
            Kind != PropertyKind::Picture,
            [](const ControlValues &values, const platform::Screen &) {
                return detail::toProperty(static_cast<const Owner &>(values).*M);
            },
            [](ControlValues &values, const PropertyValue &value) {
                detail::fromProperty(value, static_cast<Owner &>(values).*M);
            }};
}

// An element of the serialised array that repeats a property or holds what has no name.
template <auto M>
constexpr PropertyRow element()
{
    return property<M>({}, {});
}

// A read-only float that is worked out from the others; not serialised.
constexpr PropertyRow computed(std::string_view reader,
                               PropertyValue (*get)(const ControlValues &, const platform::Screen &))
{
    return {reader, {}, PropertyKind::Single, false, get};
}

} // namespace controls
