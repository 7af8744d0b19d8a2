#include "common/ini_file.h"

#include "common/code_page.h"

namespace common {

namespace {

std::optional<QString> sectionOf(const QString &line)
{
    const QString trimmed = line.trimmed();
    if (!trimmed.startsWith(QLatin1Char('[')))
        return std::nullopt;
    const qsizetype end = trimmed.indexOf(QLatin1Char(']'));
    return trimmed.mid(1, end < 0 ? -1 : end - 1).trimmed();
}

bool sameName(const QString &a, const QString &b) { return a.compare(b.trimmed(), Qt::CaseInsensitive) == 0; }

QString unquoted(const QString &value)
{
    const QChar first = value.isEmpty() ? QChar() : value.front();
    const bool quoted = value.size() >= 2 && first == value.back() &&
                        (first == QLatin1Char('"') || first == QLatin1Char('\''));
    return quoted ? value.mid(1, value.size() - 2) : value;
}

bool hasLineBreak(const QString &text)
{
    return text.contains(QLatin1Char('\n')) || text.contains(QLatin1Char('\r')) || text.contains(QChar(0));
}

bool readableName(const QString &name)
{
    return !name.trimmed().isEmpty() && !hasLineBreak(name) && fromCodePage(toCodePage(name)) == name;
}

bool readableKey(const QString &key)
{
    return readableName(key) && !key.contains(QLatin1Char('=')) &&
           !key.trimmed().startsWith(QLatin1Char('[')) && !key.trimmed().startsWith(QLatin1Char(';'));
}

// Blanks at the ends and a pair of quotes would be stripped by the next reading, so they are quoted once
// more.
QString protectedValue(const QString &value)
{
    const bool needsQuotes = value != value.trimmed() || unquoted(value) != value;
    return needsQuotes ? QLatin1Char('"') + value + QLatin1Char('"') : value;
}

} // namespace

IniFile IniFile::parse(const QByteArray &bytes)
{
    IniFile file;
    QString text = fromCodePage(bytes);
    text.remove(QLatin1Char('\r'));
    file.m_lines = text.split(QLatin1Char('\n'));
    while (!file.m_lines.isEmpty() && file.m_lines.back().trimmed().isEmpty())
        file.m_lines.removeLast();
    return file;
}

std::optional<IniFile::Place> IniFile::find(const QString &section, const QString &key) const
{
    std::optional<qsizetype> end;
    for (qsizetype i = 0; i < m_lines.size(); ++i) {
        if (const auto name = sectionOf(m_lines[i])) {
            if (end)
                break; // only the first section of a name counts
            if (sameName(*name, section))
                end = i + 1;
            continue;
        }
        if (!end || m_lines[i].trimmed().isEmpty())
            continue;
        const qsizetype equals = m_lines[i].indexOf(QLatin1Char('='));
        if (equals >= 0 && sameName(m_lines[i].left(equals).trimmed(), key))
            return Place{i, true};
        end = i + 1;
    }
    if (!end)
        return std::nullopt;
    return Place{*end, false};
}

QString IniFile::read(const QString &section, const QString &key, const QString &fallback,
                      int bufferSize) const
{
    QString value = fallback;
    if (const auto place = find(section, key); place && place->found) {
        const QString &line = m_lines[place->line];
        value = unquoted(line.mid(line.indexOf(QLatin1Char('=')) + 1).trimmed());
    }
    const qsizetype nul = value.indexOf(QChar(0));
    return value.left(nul < 0 ? bufferSize - 1 : qMin<qsizetype>(nul, bufferSize - 1));
}

bool IniFile::write(const QString &section, const QString &key, const std::optional<QString> &value)
{
    if (!readableName(section) || section.contains(QLatin1Char(']')) || !readableKey(key) ||
        (value && hasLineBreak(*value)))
        return false;
    const auto place = find(section, key);
    if (!value) {
        if (place && place->found)
            m_lines.removeAt(place->line);
        return true;
    }
    const QString line = key.trimmed() + QLatin1Char('=') + protectedValue(*value);
    if (place && place->found) {
        m_lines[place->line] = line;
    } else if (place) {
        m_lines.insert(place->line, line);
    } else {
        m_lines.append(QLatin1Char('[') + section.trimmed() + QLatin1Char(']'));
        m_lines.append(line);
    }
    return true;
}

void IniFile::removeSection(const QString &section)
{
    bool inside = false;
    m_lines.removeIf([&](const QString &line) {
        if (const auto name = sectionOf(line))
            inside = sameName(*name, section);
        return inside;
    });
}

QByteArray IniFile::bytes() const
{
    return m_lines.isEmpty() ? QByteArray() : toCodePage(m_lines.join(QLatin1String("\r\n"))) + "\r\n";
}

} // namespace common
