#include "common/code_page.h"
#include "common/number_text.h"
#include "variables/xvr.h"

namespace variables {

namespace {

const QString LineEnd = QStringLiteral("\r\n");

// Prints the lines of one block.
class BlockWriter
{
public:
    BlockWriter(QString &out, const QString &decimalSeparator)
        : m_out(out), m_decimalSeparator(decimalSeparator)
    {
    }

    void line(const char *tag, const QString &value)
    {
        const QLatin1String name(tag);
        m_out += QLatin1String("     <") + name + QLatin1Char('>') + value + QLatin1String("</") + name +
                 QLatin1Char('>') + LineEnd;
    }
    void line(const char *tag, qint32 value) { line(tag, QString::number(value)); }
    void line(const char *tag, bool value) { line(tag, value ? -1 : 0); }
    void line(const char *tag, float value) { line(tag, common::shortestText(value, m_decimalSeparator)); }

private:
    QString &m_out;
    QString m_decimalSeparator;
};

// An equation of several lines on one line.
QString onOneLine(QString equation)
{
    return equation.replace(QLatin1Char('\r'), QLatin1Char('#')).replace(QLatin1Char('\n'), QLatin1Char('$'));
}

void writeBlock(BlockWriter &block, const VariableRecord &record)
{
    block.line("IndexNumber", record.IndexNumber);
    block.line("PhysicalName", record.PhysicalName);
    block.line("BaseName", record.BaseName);
    block.line("Enabled", record.Enabled);
    block.line("AlwaysOn", record.AlwaysOn);
    block.line("Available", record.Available);
    block.line("VariableType", record.VariableType);
    block.line("DefaultMin", record.DefaultMin);
    block.line("DefaultMax", record.DefaultMax);
    block.line("FilterDesign", record.FilterDesign);
    block.line("FilterLowVal", record.FilterLowVal);
    block.line("FilterHighVal", record.FilterHighVal);
    block.line("FilterRipple", record.FilterRipple);
    block.line("FilterOrder", record.FilterOrder);
    block.line("ApplyTransformation", record.ApplyTransformation);
    block.line("AllowTransformations", record.AllowTransformations.join(QLatin1Char('#')));
    block.line("UseCustomTrans", record.UseCustomTrans);
    block.line("CustomTransformation", onOneLine(record.CustomTransformation));
    block.line("CustomUnits", QString(record.CustomUnits).remove(QChar(0)).trimmed());
    block.line("Description", record.Description);
    block.line("SmoothingTime", record.SmoothingTime);
    block.line("MaximumROC", record.MaximumROC);
    block.line("calculus", record.calculus);
    block.line("Misc", qint32{record.Misc});
}

} // namespace

QByteArray writeXvr(const VariableTable &live, const QString &decimalSeparator)
{
    QString out = QLatin1String("<VariableList>") + LineEnd;
    for (std::size_t i = 1; i < live.size(); ++i) {
        if (live[i].IndexNumber == 0)
            continue;
        out += QLatin1String("   <Data>") + LineEnd;
        BlockWriter block(out, decimalSeparator);
        writeBlock(block, live[i]);
        out += QLatin1String("   </Data>") + LineEnd + LineEnd;
    }
    out += QLatin1String("</VariableList>") + LineEnd;
    return common::toCodePage(out);
}

} // namespace variables
