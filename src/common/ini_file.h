#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace common {

// The text of a settings file in the habits of profile files: sections and keys without regard to case, the
// first of two equal keys counts, one pair of quotes round a value is stripped. Lines that are not
// understood (comments, unknown keys) stay where they are.
class IniFile
{
public:
    // Any bytes are taken; text in the 8-bit code page.
    static IniFile parse(const QByteArray &bytes);

    // The value, or `fallback` when section or key is missing; cut at its first NUL and at bufferSize - 1
    // characters.
    QString read(const QString &section, const QString &key, const QString &fallback, int bufferSize) const;

    // Sets the value, or removes the key when there is none. Refuses (false) a section or key that could not
    // be read back (empty, with characters outside the code page or line breaks, "=" or a leading "[" or ";"
    // in a key, "]" in a section) and a value with line breaks. Characters of a value that the code page
    // does not have become "?".
    bool write(const QString &section, const QString &key, const std::optional<QString> &value);
    void removeSection(const QString &section);

    QByteArray bytes() const;

private:
    struct Place
    {
        qsizetype line;
        bool found;
    };
    // The line of the key, or the line after the section's last one.
    std::optional<Place> find(const QString &section, const QString &key) const;

    QStringList m_lines;
};

} // namespace common
