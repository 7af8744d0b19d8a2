#include "common/ini_file.h"

#include "common/code_page.h"

#include <algorithm>

namespace common {

using namespace Qt::StringLiterals;

namespace {

std::optional<QString> sectionOf(const QString &line)
{
    const QString trimmed = line.trimmed();
    if (!trimmed.startsWith('['_L1))
        return std::nullopt;
    const qsizetype end = trimmed.indexOf(']'_L1);
    return trimmed.mid(1, end < 0 ? -1 : end - 1).trimmed();
}

bool sameName(QStringView a, QStringView b) { return a.compare(b.trimmed(), Qt::CaseInsensitive) == 0; }

QString unquoted(const QString &value)
{
    const QChar first = value.isEmpty() ? QChar() : value.front();
    const bool quoted = value.size() >= 2 && first == value.back() && (first == '"'_L1 || first == '\''_L1);
    return quoted ? value.mid(1, value.size() - 2) : value;
}

bool hasLineBreak(const QString &text)
{
    return text.contains('\n'_L1) || text.contains('\r'_L1) || text.contains(QChar(0));
}

bool readableName(const QString &name)
{
    return !name.trimmed().isEmpty() && !hasLineBreak(name) && fromCodePage(toCodePage(name)) == name;
}

bool readableKey(const QString &key)
{
    return readableName(key) && !key.contains('='_L1) && !key.trimmed().startsWith('['_L1) &&
           !key.trimmed().startsWith(';'_L1);
}

QString headerOf(const QString &section) { return '['_L1 + section.trimmed() + ']'_L1; }

// Empty for a line that is no pair of key and value.
QStringView keyOf(QStringView line) { return line.first(qMax<qsizetype>(line.indexOf('='_L1), 0)).trimmed(); }

QString valueOf(const QString &line) { return unquoted(line.mid(line.indexOf('='_L1) + 1).trimmed()); }

// Below a section's header; -1 when it has no such key.
qsizetype lineOf(const QStringList &lines, const QString &key)
{
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const QStringView known = keyOf(lines[i]);
        if (!known.isEmpty() && sameName(known, key))
            return i;
    }
    return -1;
}

// Where a section's next line goes: before the blank ones at its end.
qsizetype endOf(const QStringList &lines)
{
    qsizetype end = lines.size();
    while (end > 1 && lines[end - 1].trimmed().isEmpty())
        --end;
    return end;
}

// As much of a value as a buffer takes, up to its first NUL.
QString buffered(const QString &value, int bufferSize)
{
    const qsizetype nul = value.indexOf(QChar(0));
    return value.left(nul < 0 ? bufferSize - 1 : qMin<qsizetype>(nul, bufferSize - 1));
}

// Blanks at the ends and a pair of quotes would be stripped by the next reading, so they are quoted once
// more.
QString protectedValue(const QString &value)
{
    const bool needsQuotes = value != value.trimmed() || unquoted(value) != value;
    return needsQuotes ? '"'_L1 + value + '"'_L1 : value;
}

} // namespace

IniFile IniFile::parse(const QByteArray &bytes)
{
    IniFile file;
    QString text = fromCodePage(bytes);
    text.remove('\r'_L1);
    QStringList lines = text.split('\n'_L1);
    while (!lines.isEmpty() && lines.back().trimmed().isEmpty())
        lines.removeLast();
    for (const QString &line : lines) {
        if (const auto name = sectionOf(line))
            file.m_sections.append({*name, {}});
        (file.m_sections.isEmpty() ? file.m_preamble : file.m_sections.back().lines).append(line);
    }
    return file;
}

const IniFile::Section *IniFile::find(const QString &section) const
{
    const auto found = std::find_if(m_sections.begin(), m_sections.end(),
                                    [&](const Section &known) { return sameName(known.name, section); });
    return found == m_sections.end() ? nullptr : &*found;
}

QString IniFile::read(const QString &section, const QString &key, const QString &fallback,
                      int bufferSize) const
{
    const Section *found = find(section);
    const qsizetype line = found ? lineOf(found->lines, key) : -1;
    return buffered(line < 0 ? fallback : valueOf(found->lines[line]), bufferSize);
}

QList<std::pair<QString, QString>> IniFile::entries(const QString &section, int bufferSize) const
{
    QList<std::pair<QString, QString>> entries;
    const Section *found = find(section);
    for (const QString &line : found ? found->lines.sliced(1) : QStringList()) {
        if (const QStringView key = keyOf(line); !key.isEmpty())
            entries.append({key.toString(), buffered(valueOf(line), bufferSize)});
    }
    return entries;
}

bool IniFile::write(const QString &section, const QString &key, const std::optional<QString> &value)
{
    if (!readableName(section) || section.contains(']'_L1) || !readableKey(key) ||
        (value && hasLineBreak(*value)))
        return false;
    const Section *found = find(section);
    if (!found && !value)
        return true;
    if (!found)
        m_sections.append({section.trimmed(), {headerOf(section)}});
    QStringList &lines = m_sections[found ? found - m_sections.constData() : m_sections.size() - 1].lines;
    const qsizetype line = lineOf(lines, key);
    const auto text = [&] { return key.trimmed() + '='_L1 + protectedValue(*value); };
    if (line < 0 && value)
        lines.insert(endOf(lines), text());
    else if (value)
        lines[line] = text();
    else if (line >= 0)
        lines.removeAt(line);
    return true;
}

void IniFile::removeSection(const QString &section)
{
    m_sections.removeIf([&](const Section &known) { return sameName(known.name, section); });
}

void IniFile::renameSection(const QString &section, const QString &name)
{
    for (Section &known : m_sections) {
        if (sameName(known.name, section)) {
            known.name = name;
            known.lines[0] = headerOf(name);
        }
    }
}

QByteArray IniFile::bytes() const
{
    QStringList lines = m_preamble;
    for (const Section &section : m_sections)
        lines += section.lines;
    return lines.isEmpty() ? QByteArray() : toCodePage(lines.join("\r\n"_L1)) + "\r\n";
}

} // namespace common
