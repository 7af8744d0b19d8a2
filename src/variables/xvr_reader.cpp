#include "common/code_page.h"
#include "common/number_text.h"
#include "common/rounding.h"
#include "platform/guards.h"
#include "variables/xvr.h"

#include <QDomDocument>

#include <algorithm>
#include <array>
#include <functional>

namespace variables {

namespace {

using common::leadingNumber;
using common::toInteger;
using common::toSingle;
using platform::skipFailures;

// Texts gathered for the record that is being read, by tag. Tags are compared without regard to case.
template <std::size_t N>
class Slots
{
public:
    explicit Slots(const std::array<const char *, N> &tags) : m_tags(tags) {}

    void store(const QString &tag, const QString &text)
    {
        for (std::size_t i = 0; i < N; ++i) {
            if (tag.compare(QLatin1String(m_tags[i]), Qt::CaseInsensitive) == 0)
                m_texts[i] = text;
        }
    }
    const QString &operator[](const char *tag) const
    {
        const auto found = std::find(m_tags.begin(), m_tags.end(), std::string_view(tag));
        return m_texts[static_cast<std::size_t>(found - m_tags.begin())];
    }
    void clear() { m_texts.fill(QString()); }

private:
    std::array<const char *, N> m_tags;
    std::array<QString, N> m_texts;
};

constexpr std::array<const char *, 25> VariableTags{"ConstantName",
                                                    "IndexNumber",
                                                    "PhysicalName",
                                                    "BaseName",
                                                    "Enabled",
                                                    "AlwaysOn",
                                                    "Available",
                                                    "VariableType",
                                                    "Description",
                                                    "DefaultMin",
                                                    "DefaultMax",
                                                    "SmoothingTime",
                                                    "MaximumROC",
                                                    "AllowTransformations",
                                                    "ApplyTransformation",
                                                    "FilterDesign",
                                                    "Calculus",
                                                    "FilterLowVal",
                                                    "FilterHighVal",
                                                    "FilterRipple",
                                                    "FilterOrder",
                                                    "UseCustomTrans",
                                                    "CustomTransformation",
                                                    "CustomUnits",
                                                    "Misc"};
constexpr std::array<const char *, 4> UnitTags{"UnitName", "Description", "Conversion", "Uniit"};

// The walk of both files: depth first, a text goes to the slot of its parent's name, a node with two children
// or more is a group, and at that moment the record gathered before it is complete. The document is no node.
template <std::size_t N>
void walk(const QDomNode &node, Slots<N> &slots_, const std::function<void()> &recordComplete)
{
    if (node.nodeType() == QDomNode::TextNode) // not of a CDATA section
        slots_.store(node.parentNode().nodeName(), node.nodeValue());
    const QDomNodeList children = node.childNodes();
    if (children.count() >= 2)
        recordComplete();
    for (int i = 0; i < children.count(); ++i)
        walk(children.at(i), slots_, recordComplete);
}

// A number in the system's own form. Throws RunTimeError for a text that is none.
double localNumber(QString text, const QString &decimalSeparator)
{
    bool isNumber = false;
    const double value = text.replace(decimalSeparator, QLatin1String(".")).trimmed().toDouble(&isNumber);
    if (!isNumber)
        throw common::RunTimeError(QStringLiteral("Type mismatch"));
    return value;
}

class RecordBuilder
{
public:
    RecordBuilder(const Slots<25> &texts, const QString &decimalSeparator)
        : m_texts(texts), m_decimalSeparator(decimalSeparator)
    {
    }

    // A field whose text does not fit it keeps its start value.
    VariableRecord record() const
    {
        VariableRecord r;
        skipFailures([&] { r.IndexNumber = toInteger<qint32>(local("IndexNumber")); });
        r.PhysicalName = m_texts["PhysicalName"];
        r.BaseName = m_texts["BaseName"];
        r.Enabled = number("Enabled") != 0;
        r.AlwaysOn = number("AlwaysOn") != 0;
        r.Available = number("Available") != 0;
        skipFailures([&] { r.VariableType = toInteger<qint32>(local("VariableType")); });
        r.Description = m_texts["Description"];
        skipFailures([&] { r.DefaultMin = toSingle(local("DefaultMin")); });
        skipFailures([&] { r.DefaultMax = toSingle(local("DefaultMax")); });
        skipFailures([&] { r.SmoothingTime = toSingle(local("SmoothingTime")); });
        skipFailures([&] { r.MaximumROC = toSingle(local("MaximumROC")); });
        r.AllowTransformations = m_texts["AllowTransformations"].split(QLatin1Char('#'));
        r.ApplyTransformation = m_texts["ApplyTransformation"];
        skipFailures([&] { r.FilterDesign = toInteger<qint32>(number("FilterDesign")); });
        skipFailures([&] { r.calculus = toInteger<qint32>(number("Calculus")); });
        skipFailures([&] { r.FilterLowVal = toSingle(number("FilterLowVal")); });
        skipFailures([&] { r.FilterHighVal = toSingle(number("FilterHighVal")); });
        skipFailures([&] { r.FilterRipple = toSingle(number("FilterRipple")); });
        skipFailures([&] { r.FilterOrder = toInteger<qint32>(number("FilterOrder")); });
        r.UseCustomTrans = number("UseCustomTrans") != 0;
        r.CustomTransformation = m_texts["CustomTransformation"];
        r.CustomTransformation.replace(QLatin1Char('#'), QLatin1Char('\r'))
            .replace(QLatin1Char('$'), QLatin1Char('\n'));
        r.CustomUnits = m_texts["CustomUnits"];
        skipFailures([&] { r.Misc = toInteger<quint8>(number("Misc")); });
        return r;
    }

private:
    double number(const char *tag) const { return leadingNumber(m_texts[tag]); }
    double local(const char *tag) const { return localNumber(m_texts[tag], m_decimalSeparator); }

    const Slots<25> &m_texts;
    const QString &m_decimalSeparator;
};

VariableTable readVariables(const QDomDocument &document, const QString &decimalSeparator)
{
    VariableTable table(LastIndex + 1);
    Slots<25> texts(VariableTags);
    const RecordBuilder builder(texts, decimalSeparator);
    const auto store = [&] {
        if (!texts["IndexNumber"].isEmpty()) {
            VariableRecord record = builder.record();
            if (record.IndexNumber >= 0 && record.IndexNumber <= LastIndex)
                table[static_cast<std::size_t>(record.IndexNumber)] = std::move(record);
        }
        texts.clear();
    };
    walk(document.documentElement(), texts, store);
    const bool sentinel = builder.record().IndexNumber == LastIndex;
    if (sentinel && table[LastIndex].IndexNumber == 0)
        store();
    return table;
}

// Every group adds a row without a test for emptiness, so the first rows are blank: the look-up relies on row
// 0.
UnitTable readUnits(const QDomDocument &document)
{
    UnitTable units(1);
    Slots<4> texts(UnitTags);
    const auto fillLast = [&] {
        units.back() = {texts["UnitName"], texts["Description"], texts["Conversion"], texts["Uniit"]};
        texts.clear();
    };
    walk(document.documentElement(), texts, [&] {
        fillLast();
        units.emplace_back();
    });
    fillLast();
    return units;
}

QString parseReport(const QString &source, const QString &reason, int line, int column, const QString &path)
{
    const QStringList lines = source.split(QLatin1Char('\n'));
    qsizetype position = column;
    for (int i = 0; i < line - 1 && i < lines.size(); ++i)
        position += lines[i].size() + 1;
    const QString sourceText = line >= 1 && line <= lines.size() ? lines[line - 1].trimmed() : QString();
    const QString end = QStringLiteral("\r\n");
    constexpr int ErrorCode = 1; // the parser tells no code of its own
    return QStringLiteral("Your XVR Document failed to load") + QStringLiteral("due the following error.") +
           end + QStringLiteral("Error #: %1: ").arg(ErrorCode) + reason + end +
           QStringLiteral("Line #: %1").arg(line) + end + QStringLiteral("Line Position: %1").arg(column) +
           end + QStringLiteral("Position In File: %1").arg(position) + end +
           QStringLiteral("Source Text: ") + sourceText + end + QStringLiteral("Document URL: ") + path;
}

} // namespace

bool readXvr(const QByteArray &bytes, const QString &path, XvrKind kind, Catalogue &catalogue,
             const QString &decimalSeparator, platform::Prompts &prompts)
{
    const QString source = common::fromCodePage(bytes);
    QDomDocument document;
    QString reason;
    int line = 0;
    int column = 0;
    if (!document.setContent(source, &reason, &line, &column)) {
        prompts.message(platform::Icon::Warning, platform::ProductTitle,
                        parseReport(source, reason, line, column, path));
        return false;
    }
    if (kind == XvrKind::Units)
        catalogue.units = readUnits(document);
    else
        catalogue.staging = readVariables(document, decimalSeparator);
    return true;
}

} // namespace variables
