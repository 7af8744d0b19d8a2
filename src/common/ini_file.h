#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

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
    bool hasSection(const QString &section) const { return find(section) != nullptr; }
    // The keys of a section with the values that read() gives for such a buffer, in their order.
    QList<std::pair<QString, QString>> entries(const QString &section, int bufferSize) const;
    void removeSection(const QString &section);
    // Gives a section another name; its lines stay as they are.
    void renameSection(const QString &section, const QString &name);

    QByteArray bytes() const;

private:
    struct Section
    {
        QString name;
        QStringList lines; // its header first
    };
    // The first section of the name; null when there is none.
    const Section *find(const QString &section) const;

    QStringList m_preamble; // the lines before the first section
    QList<Section> m_sections;
};

} // namespace common
