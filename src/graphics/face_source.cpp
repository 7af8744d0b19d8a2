#include "graphics/face_source.h"

#include "graphics/outline_file.h"

#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPainterPath>
#include <QtEndian>

#include <algorithm>

namespace graphics {

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 TrueTypeOutlines = 0x00010000;
constexpr quint32 CompactOutlines = 0x4F54544F; // "OTTO"

// The tables that outlines need, in the order of their tags. Instructions for fitting are left out.
constexpr char CompactTable[] = "CFF ";
constexpr char TrueTypeTable[] = "glyf";
constexpr const char *OutlineTables[] = {CompactTable, "OS/2", "cmap", TrueTypeTable, "head",
                                         "hhea",       "hmtx", "loca", "maxp",        "post"};

// Names under which the desktop lists the faces that it takes for usual ones.
const QStringList Aliases = {u"Serif"_s, u"Sans Serif"_s, u"Monospace"_s};

struct Table
{
    const char *tag;
    QByteArray bytes;
};

void putBigEndian(QByteArray &file, auto value)
{
    value = qToBigEndian(value);
    file.append(reinterpret_cast<const char *>(&value), sizeof value);
}

qsizetype padded(qsizetype size) { return (size + 3) & ~qsizetype(3); }

QByteArray fontFileOf(const QList<Table> &tables)
{
    const bool compact = qstrcmp(tables.front().tag, CompactTable) == 0;
    QByteArray file;
    putBigEndian(file, compact ? CompactOutlines : TrueTypeOutlines);
    putBigEndian(file, static_cast<quint16>(tables.size()));
    file.append(6, '\0'); // aids for a search by halves
    constexpr qsizetype EntrySize = 16;
    qsizetype offset = file.size() + tables.size() * EntrySize;
    for (const Table &table : tables) {
        file.append(table.tag, 4);
        putBigEndian(file, quint32(0)); // sums are not looked at
        putBigEndian(file, static_cast<quint32>(offset));
        putBigEndian(file, static_cast<quint32>(table.bytes.size()));
        offset += padded(table.bytes.size());
    }
    for (const Table &table : tables) {
        file.append(table.bytes);
        file.append(padded(table.bytes.size()) - table.bytes.size(), '\0');
    }
    return file;
}

bool isOneOf(const QStringList &names, const QString &face)
{
    return std::any_of(names.begin(), names.end(), [&](const QString &name) {
        return storedFace(name).compare(face, Qt::CaseInsensitive) == 0;
    });
}

QRawFont desktopsAnswer(const QString &face, bool bold, bool italic)
{
    QFont font(face);
    font.setBold(bold);
    font.setItalic(italic);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::NoFontMerging | QFont::ForceOutline));
    return QRawFont::fromFont(font);
}

// Of a name that the desktop lists. Not valid when the face cannot be opened: the desktop's own idea of a
// replacement counts for an alias only.
QRawFont listedFont(const QString &name, const FontStyle &style)
{
    const QRawFont found = desktopsAnswer(name, style.bold, style.italic);
    if (!isOneOf({found.familyName()}, name) && !isOneOf(Aliases, name))
        return {};
    // Asked once more for no more than there is, or the desktop would make up the rest of the style.
    return desktopsAnswer(name, style.bold && found.weight() >= QFont::DemiBold,
                          style.italic && found.style() != QFont::StyleNormal);
}

// Not valid when the face is not there.
QRawFont installedFont(const QString &face, const FontStyle &style)
{
    const QString name = storedFace(face);
    const bool listed = qGuiApp && isOneOf(QFontDatabase::families(), name);
    return listed ? listedFont(name, style) : QRawFont();
}

bool draws(const QRawFont &font, QChar character)
{
    const QList<quint32> glyph = font.glyphIndexesForString(character);
    return font.supportsCharacter(character) && !glyph.isEmpty() &&
           !font.pathForGlyph(glyph.front()).isEmpty();
}

bool drawsText(const QRawFont &font)
{
    return font.isValid() && (draws(font, u'A') || draws(font, u'a') || draws(font, u'0'));
}

} // namespace

bool isInstalled(const QString &face) { return isShippedFace(face) || drawsText(installedFont(face, {})); }

bool isDrawable(const QString &face) { return isOneOf(StoodInFor, storedFace(face)) || isInstalled(face); }

QStringList drawableFaces()
{
    QStringList faces = StoodInFor;
    for (const QString &face : QFontDatabase::families()) {
        const QString name = storedFace(face);
        if (QFontDatabase::isSmoothlyScalable(face) && !QFontDatabase::isPrivateFamily(face) &&
            drawsText(listedFont(name, {})))
            faces.append(name);
    }
    faces.sort(Qt::CaseInsensitive);
    faces.removeDuplicates();
    return faces;
}

QByteArray installedFace(const QString &face, const FontStyle &style)
{
    const QRawFont font = installedFont(face, style);
    if (!font.isValid())
        return {};
    if (font.fontTable(TrueTypeTable).isEmpty() && font.fontTable(CompactTable).isEmpty())
        return outlineFile(font);
    QList<Table> tables;
    for (const char *tag : OutlineTables) {
        if (const QByteArray bytes = font.fontTable(tag); !bytes.isEmpty())
            tables.append({tag, bytes});
    }
    return fontFileOf(tables);
}

QByteArray shippedFace(const QString &folder, const FontStyle &style)
{
    const QString name = style.bold && style.italic ? u"BoldItalic"_s
                         : style.bold               ? u"Bold"_s
                         : style.italic             ? u"Italic"_s
                                                    : u"Regular"_s;
    QFile file(u"%1LiberationSans-%2.ttf"_s.arg(folder, name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool isShippedFace(const QString &face) { return face.compare(ShippedFace, Qt::CaseInsensitive) == 0; }

} // namespace graphics
