#include "surface/custom_store.h"

#include "common/code_page.h"
#include "common/run_time_error.h"

#include <QHash>
#include <QSet>

#include <map>

namespace surface {

using namespace Qt::StringLiterals;
using common::IniFile;
using controls::Family;

namespace {

const QString CountKey = u"CNT"_s;
const QString Missing = u"0"_s;
constexpr int MostPlaces = 9'999;
// Of a reader, in characters with the end.
constexpr int NameBuffer = 50;
constexpr int FileBuffer = 20;
constexpr int TextBuffer = 200;

QString keysOf(const Family &family) { return QLatin1String(family.name); }
QString filesOf(const Family &family) { return keysOf(family) + "_FILE"_L1; }
QString textsOf(const Family &family, int place) { return u"%1/%2"_s.arg(keysOf(family)).arg(place); }

// Nothing for keys that are not places; the first of two equal ones counts.
std::map<int, QString> byPlace(const IniFile &file, const QString &section, int buffer)
{
    std::map<int, QString> values;
    for (const auto &[key, value] : file.entries(section, buffer)) {
        const int place = key.toInt();
        if (place >= 1 && place <= MostPlaces && QString::number(place) == key && !value.isEmpty())
            values.emplace(place, value);
    }
    return values;
}

QString withLetter(const Family &family, const QString &key)
{
    const QLatin1Char letter(family.letter);
    return key.startsWith(letter) ? key : letter + key;
}

// Gives keys that were given out before a number.
class UnlikeKeys
{
public:
    QString take(const QString &key)
    {
        QString unlike = key;
        for (int &uses = m_uses[key]; uses > 0 && m_uses.contains(unlike);)
            unlike = u"%1 %2"_s.arg(key).arg(++uses);
        ++m_uses[unlike];
        return unlike;
    }

private:
    QHash<QString, int> m_uses;
};

// What can stand on the line of a key.
QString onOneLine(QString text)
{
    return text.removeIf([](QChar c) { return c == u'\n' || c == u'\r' || c.isNull(); });
}

void writePlace(IniFile &file, const QString &section, int place, const std::optional<QString> &value)
{
    file.write(section, QString::number(place), value);
}

// The places by key and the count, last: a key may be called like it.
void writeIndex(IniFile &file, const Family &family)
{
    const QList<CustomEntry> entries = customEntries(file, family);
    for (const CustomEntry &entry : entries)
        file.write(keysOf(family), entry.key, QString::number(entry.place));
    file.write(keysOf(family), CountKey, QString::number(entries.isEmpty() ? 0 : entries.back().place));
}

// The next place behind all entries and, where the last one is taken, from the first on. A section without a
// key is of an entry that has lost it.
int freePlace(const IniFile &file, const Family &family)
{
    const QList<CustomEntry> entries = customEntries(file, family);
    QSet<int> taken;
    for (const CustomEntry &entry : entries)
        taken.insert(entry.place);
    const int last = entries.isEmpty() ? 0 : entries.back().place;
    for (int step = 0; step < MostPlaces; ++step) {
        const int place = (last + step) % MostPlaces + 1;
        if (!taken.contains(place) && !file.hasSection(textsOf(family, place)))
            return place;
    }
    throw common::RunTimeError(u"The control library is full"_s);
}

// Gives the entry's lines the place before its own, which is free.
void moveUp(IniFile &file, const Family &family, const CustomEntry &entry)
{
    const int before = entry.place - 1;
    writePlace(file, keysOf(family), before, entry.key);
    writePlace(file, keysOf(family), entry.place, std::nullopt);
    setThumbnail(file, family, before, entry.thumbnail);
    setThumbnail(file, family, entry.place, {});
    file.renameSection(textsOf(family, entry.place), textsOf(family, before));
}

} // namespace

QList<CustomEntry> customEntries(const IniFile &file, const Family &family)
{
    const auto thumbnails = byPlace(file, filesOf(family), FileBuffer);
    UnlikeKeys keys;
    keys.take(QLatin1String(family.rootKey));
    QList<CustomEntry> entries;
    for (const auto &[place, stored] : byPlace(file, keysOf(family), NameBuffer)) {
        const auto thumbnail = thumbnails.find(place);
        entries.append({place, keys.take(withLetter(family, stored)),
                        thumbnail == thumbnails.end() ? QString() : thumbnail->second});
    }
    return entries;
}

QString customKey(const Family &family, const QString &name)
{
    const QString plain = common::fromCodePage(common::toCodePage(onOneLine(name).trimmed()));
    return (QLatin1Char(family.letter) + plain).left(NameBuffer - 1);
}

QStringList customTexts(const IniFile &file, const Family &family, int place, qsizetype count)
{
    QStringList texts(count, Missing);
    QSet<qsizetype> known;
    for (const auto &[key, value] : file.entries(textsOf(family, place), TextBuffer)) {
        const qsizetype element = key.toInt();
        if (element < 0 || element >= count || QString::number(element) != key || known.contains(element))
            continue;
        texts[element] = value;
        known.insert(element);
    }
    return texts;
}

CustomEntry defineEntry(IniFile &file, const Family &family, const QString &key, const QString &thumbnail,
                        const QStringList &texts)
{
    const int place = freePlace(file, family);
    writePlace(file, keysOf(family), place, key);
    setThumbnail(file, family, place, thumbnail);
    for (qsizetype i = 0; i < texts.size(); ++i)
        file.write(textsOf(family, place), QString::number(i), onOneLine(texts[i]));
    writeIndex(file, family);
    return {place, key, thumbnail};
}

void renameEntry(IniFile &file, const Family &family, int place, const QString &key)
{
    for (const CustomEntry &entry : customEntries(file, family)) {
        if (entry.place == place)
            file.write(keysOf(family), entry.key, std::nullopt);
    }
    writePlace(file, keysOf(family), place, key);
    writeIndex(file, family);
}

void deleteEntry(IniFile &file, const Family &family, int place)
{
    int vacant = 0;
    for (const CustomEntry &entry : customEntries(file, family)) {
        if (entry.place == place) {
            file.removeSection(textsOf(family, place));
            writePlace(file, keysOf(family), place, std::nullopt);
            setThumbnail(file, family, place, {});
            file.write(keysOf(family), entry.key, std::nullopt);
            vacant = place;
        } else if (vacant != 0 && entry.place == vacant + 1) {
            moveUp(file, family, entry);
            vacant = entry.place;
        }
    }
    writeIndex(file, family);
}

void setThumbnail(IniFile &file, const Family &family, int place, const QString &name)
{
    writePlace(file, filesOf(family), place, name.isEmpty() ? std::nullopt : std::optional(name));
}

} // namespace surface
