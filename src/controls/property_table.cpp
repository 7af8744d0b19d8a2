#include "controls/property_table.h"

#include "common/number_text.h"

#include <algorithm>

namespace controls {

using namespace Qt::StringLiterals;

namespace {

using common::RunTimeError;

constexpr int SizeEntries = 2; // width and height come first

template <std::string_view PropertyRow::*Name>
const PropertyRow *findRow(std::span<const PropertyRow> rows, std::string_view name)
{
    const auto found = std::find_if(rows.begin(), rows.end(), [name](const PropertyRow &row) {
        return !name.empty() && row.*Name == name;
    });
    return found == rows.end() ? nullptr : &*found;
}

QString toText(const PropertyValue &value, const QString &decimalMark)
{
    struct
    {
        const QString &mark;
        QString operator()(qint32 number) const { return QString::number(number); }
        QString operator()(float number) const { return common::shortestText(number, mark); }
        QString operator()(const QString &text) const { return text; }
        QString operator()(const QImage &) const { return {}; }
    } const visitor{decimalMark};
    return std::visit(visitor, value);
}

double numberIn(QString text, const QString &decimalMark)
{
    return common::leadingNumber(text.replace(decimalMark, "."_L1));
}

float floatOf(const QString &text, const QString &decimalMark)
{
    return detail::toSingle(numberIn(text, decimalMark));
}

PropertyValue fromText(const QString &text, PropertyKind kind, const QString &decimalMark)
{
    if (kind == PropertyKind::Text)
        return text;
    if (kind == PropertyKind::Single)
        return floatOf(text, decimalMark);
    return common::toInteger<qint32>(numberIn(text, decimalMark));
}

template <typename T>
const T &valueAs(const PropertyValue &value)
{
    if (const T *held = std::get_if<T>(&value))
        return *held;
    throw RunTimeError(u"Type mismatch"_s);
}

} // namespace

namespace detail {

double numberOf(const PropertyValue &value)
{
    if (const auto *whole = std::get_if<qint32>(&value))
        return *whole;
    return static_cast<double>(valueAs<float>(value));
}

void fromProperty(const PropertyValue &value, QString &member) { member = valueAs<QString>(value); }

void fromProperty(const PropertyValue &value, QImage &member) { member = valueAs<QImage>(value); }

} // namespace detail

const PropertyRow *PropertyTable::reader(std::string_view name) const
{
    return findRow<&PropertyRow::reader>(rows, name);
}

const PropertyRow *PropertyTable::writer(std::string_view name) const
{
    return findRow<&PropertyRow::writer>(rows, name);
}

QList<CopyElement> copyElements(const PropertyTable &table)
{
    QList<CopyElement> elements;
    qsizetype element = SizeEntries;
    for (const PropertyRow &row : table.rows) {
        if (!row.picture.empty())
            elements.append({element, row.picture});
        element += row.isSerialised ? 1 : 0;
    }
    return elements;
}

QStringList serialise(const PropertyTable &table, const ControlValues &values, const platform::Screen &screen,
                      const QString &decimalMark)
{
    QStringList texts{common::shortestText(values.box.Width, decimalMark),
                      common::shortestText(values.box.Height, decimalMark)};
    for (const PropertyRow &row : table.rows) {
        if (row.isSerialised)
            texts.append(toText(row.get(values, screen), decimalMark));
    }
    return texts;
}

void deserialise(const PropertyTable &table, ControlValues &values, const QStringList &texts,
                 const QString &decimalMark)
{
    const auto serialised = std::count_if(table.rows.begin(), table.rows.end(),
                                          [](const PropertyRow &row) { return row.isSerialised; });
    if (texts.size() < SizeEntries + serialised)
        throw RunTimeError(u"Subscript out of range"_s);
    values.box.Width = floatOf(texts[0], decimalMark);
    values.box.Height = floatOf(texts[1], decimalMark);
    qsizetype entry = SizeEntries;
    for (const PropertyRow &row : table.rows) {
        if (row.isSerialised)
            row.set(values, fromText(texts[entry++], row.kind, decimalMark));
    }
}

} // namespace controls
