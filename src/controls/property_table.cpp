#include "controls/property_table.h"

#include "common/number_text.h"

namespace controls {

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
    } const visitor{decimalMark};
    return std::visit(visitor, value);
}

float floatOf(QString text, const QString &decimalMark)
{
    return detail::toSingle(common::leadingNumber(text.replace(decimalMark, QLatin1String("."))));
}

// `kind` tells by its alternative what the text stands for.
PropertyValue fromText(const QString &text, const PropertyValue &kind, const QString &decimalMark)
{
    if (std::holds_alternative<QString>(kind))
        return text;
    if (std::holds_alternative<float>(kind))
        return floatOf(text, decimalMark);
    QString number = text;
    return common::toInteger<qint32>(common::leadingNumber(number.replace(decimalMark, QLatin1String("."))));
}

} // namespace

namespace detail {

double numberOf(const PropertyValue &value)
{
    if (const auto *whole = std::get_if<qint32>(&value))
        return *whole;
    if (const auto *single = std::get_if<float>(&value))
        return static_cast<double>(*single);
    throw RunTimeError(QStringLiteral("Type mismatch"));
}

void fromProperty(const PropertyValue &value, QString &member)
{
    const auto *text = std::get_if<QString>(&value);
    if (!text)
        throw RunTimeError(QStringLiteral("Type mismatch"));
    member = *text;
}

} // namespace detail

const PropertyRow *PropertyTable::reader(std::string_view name) const
{
    return findRow<&PropertyRow::reader>(rows, name);
}

const PropertyRow *PropertyTable::writer(std::string_view name) const
{
    return findRow<&PropertyRow::writer>(rows, name);
}

QStringList serialise(const PropertyTable &table, const ControlValues &values, const platform::Screen &screen,
                      const QString &decimalMark)
{
    QStringList texts{common::shortestText(values.box.Width, decimalMark),
                      common::shortestText(values.box.Height, decimalMark)};
    for (const std::string_view name : table.serialised)
        texts.append(toText(table.reader(name)->get(values, screen), decimalMark));
    return texts;
}

void deserialise(const PropertyTable &table, ControlValues &values, const QStringList &texts,
                 const platform::Screen &screen, const QString &decimalMark)
{
    if (texts.size() < SizeEntries + static_cast<qsizetype>(table.serialised.size()))
        throw RunTimeError(QStringLiteral("Subscript out of range"));
    values.box.Width = floatOf(texts[0], decimalMark);
    values.box.Height = floatOf(texts[1], decimalMark);
    qsizetype entry = SizeEntries;
    for (const std::string_view name : table.serialised) {
        const PropertyRow &row = *table.reader(name);
        row.set(values, fromText(texts[entry++], row.get(values, screen), decimalMark));
        row.set(values, row.get(values, screen));
    }
}

} // namespace controls
