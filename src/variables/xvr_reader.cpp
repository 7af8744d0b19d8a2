#include "common/code_page.h"
#include "common/number_text.h"
#include "common/rounding.h"
#include "platform/guards.h"
#include "variables/xvr.h"
#include "variables/xvr_fields.h"

#include <QDomDocument>
#include <QHash>

#include <concepts>
#include <functional>

namespace variables {

using namespace Qt::StringLiterals;

namespace {

using common::leadingNumber;
using common::toInteger;
using common::toSingle;
using platform::skipFailures;

// Texts gathered for the record that is being read, by tag. Tags are compared without regard to case.
class Texts
{
public:
    void store(const QString &tag, const QString &text) { m_texts.insert(tag.toCaseFolded(), text); }
    QString operator[](const char *tag) const
    {
        return m_texts.value(QString::fromLatin1(tag).toCaseFolded());
    }
    void clear() { m_texts.clear(); }

private:
    QHash<QString, QString> m_texts;
};

// The walk of both files: depth first, a text goes to the slot of its parent's name, a node with two children
// or more is a group, and at that moment the record gathered before it is complete. The document is no node.
void walk(const QDomNode &node, Texts &texts, const std::function<void()> &recordComplete)
{
    if (node.nodeType() == QDomNode::TextNode) // not of a CDATA section
        texts.store(node.parentNode().nodeName(), node.nodeValue());
    const QDomNodeList children = node.childNodes();
    if (children.count() >= 2)
        recordComplete();
    for (int i = 0; i < children.count(); ++i)
        walk(children.at(i), texts, recordComplete);
}

// A number in the system's own form. Throws RunTimeError for a text that is none.
double localNumber(QString text, const QString &decimalSeparator)
{
    bool isNumber = false;
    const double value = text.replace(decimalSeparator, "."_L1).trimmed().toDouble(&isNumber);
    if (!isNumber)
        throw common::RunTimeError(u"Type mismatch"_s);
    return value;
}

// Reads the fields of one block. A field whose text does not fit it keeps its start value.
class BlockReader
{
public:
    BlockReader(const Texts &texts, const QString &decimalSeparator)
        : m_texts(texts), m_decimalSeparator(decimalSeparator)
    {
    }

    void number(const char *tag, auto &value)
    {
        skipFailures([&] { convert(leadingNumber(m_texts[tag]), value); });
    }
    void localNumber(const char *tag, auto &value)
    {
        skipFailures([&] { convert(variables::localNumber(m_texts[tag], m_decimalSeparator), value); });
    }
    void text(const char *tag, QString &value) { value = m_texts[tag]; }
    void list(const char *tag, QStringList &value) { value = m_texts[tag].split('#'_L1); }
    void equation(const char *tag, QString &value)
    {
        value = m_texts[tag];
        value.replace('#'_L1, '\r'_L1).replace('$'_L1, '\n'_L1);
    }
    void label(const char *tag, QString &value) { text(tag, value); }

private:
    static void convert(double number, bool &value) { value = number != 0; }
    static void convert(double number, float &value) { value = toSingle(number); }
    static void convert(double number, std::integral auto &value)
    {
        value = toInteger<std::decay_t<decltype(value)>>(number);
    }

    const Texts &m_texts;
    const QString &m_decimalSeparator;
};

VariableTable readVariables(const QDomDocument &document, const QString &decimalSeparator)
{
    VariableTable table(LastIndex + 1);
    Texts texts;
    const auto gathered = [&] {
        VariableRecord record;
        visitXvr(record, BlockReader(texts, decimalSeparator));
        return record;
    };
    walk(document.documentElement(), texts, [&] {
        const bool hasIndex = !texts["IndexNumber"].isEmpty();
        VariableRecord record = gathered();
        if (hasIndex && record.IndexNumber >= 0 && record.IndexNumber <= LastIndex)
            table[record.IndexNumber] = std::move(record);
        texts.clear();
    });
    VariableRecord last = gathered();
    if (last.IndexNumber == LastIndex && table[LastIndex].IndexNumber == 0)
        table[LastIndex] = std::move(last);
    return table;
}

// Every group adds a row without a test for emptiness, so the first rows are blank: the look-up relies on row
// 0.
UnitTable readUnits(const QDomDocument &document)
{
    UnitTable units(1);
    Texts texts;
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
    const QStringList lines = source.split('\n'_L1);
    qsizetype position = column;
    for (int i = 0; i < line - 1 && i < lines.size(); ++i)
        position += lines[i].size() + 1;
    const QString sourceText = line >= 1 && line <= lines.size() ? lines[line - 1].trimmed() : QString();
    const QString end = u"\r\n"_s;
    constexpr int ErrorCode = 1; // the parser tells no code of its own
    return u"Your XVR Document failed to load"_s + u"due the following error."_s + end +
           u"Error #: %1: "_s.arg(ErrorCode) + reason + end + u"Line #: %1"_s.arg(line) + end +
           u"Line Position: %1"_s.arg(column) + end + u"Position In File: %1"_s.arg(position) + end +
           u"Source Text: "_s + sourceText + end + u"Document URL: "_s + path;
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
