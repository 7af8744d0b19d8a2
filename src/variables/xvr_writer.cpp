#include "common/code_page.h"
#include "common/number_text.h"
#include "variables/xvr.h"
#include "variables/xvr_fields.h"

#include <concepts>

namespace variables {

using namespace Qt::StringLiterals;

namespace {

const QString LineEnd = u"\r\n"_s;

// Prints the lines of one block.
class BlockWriter
{
public:
    BlockWriter(QString &out, const QString &decimalSeparator)
        : m_out(out), m_decimalSeparator(decimalSeparator)
    {
    }

    void number(const char *tag, std::integral auto value) { text(tag, QString::number(value)); }
    void number(const char *tag, bool value) { number(tag, value ? -1 : 0); }
    void number(const char *tag, float value) { text(tag, common::shortestText(value, m_decimalSeparator)); }
    void localNumber(const char *tag, auto value) { number(tag, value); }
    void list(const char *tag, const QStringList &texts) { text(tag, texts.join('#'_L1)); }
    void equation(const char *tag, QString equation)
    {
        equation.replace('\r'_L1, '#'_L1).replace('\n'_L1, '$'_L1);
        text(tag, equation);
    }
    void label(const char *tag, QString label) { text(tag, label.remove(QChar(0)).trimmed()); }
    void text(const char *tag, const QString &value)
    {
        const QLatin1String name(tag);
        m_out += "     <"_L1 + name + '>'_L1 + value + "</"_L1 + name + '>'_L1 + LineEnd;
    }

private:
    QString &m_out;
    const QString &m_decimalSeparator;
};

} // namespace

QByteArray writeXvr(const VariableTable &live, const QString &decimalSeparator)
{
    QString out = "<VariableList>"_L1 + LineEnd;
    for (qsizetype i = 1; i < live.size(); ++i) {
        if (live[i].IndexNumber == 0)
            continue;
        out += "   <Data>"_L1 + LineEnd;
        visitXvr(live[i], BlockWriter(out, decimalSeparator));
        out += "   </Data>"_L1 + LineEnd + LineEnd;
    }
    out += "</VariableList>"_L1 + LineEnd;
    return common::toCodePage(out);
}

} // namespace variables
