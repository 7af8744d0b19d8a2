#include "graphics/face_source.h"

#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QRawFont>
#include <QtEndian>

namespace graphics {

namespace {

constexpr quint32 TrueTypeOutlines = 0x00010000;
constexpr quint32 CompactOutlines = 0x4F54544F; // "OTTO"

// The tables that outlines need, in the order of their tags. Instructions for fitting are left out.
constexpr char CompactTable[] = "CFF ";
constexpr const char *OutlineTables[] = {CompactTable, "OS/2", "cmap", "glyf", "head",
                                         "hhea",       "hmtx", "loca", "maxp", "post"};

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

// Not valid when the face is not there: the desktop's own idea of a replacement does not count.
QRawFont installedFont(const QString &face, const FontStyle &style)
{
    if (!qGuiApp || !QFontDatabase::hasFamily(face))
        return {};
    QFont font(face);
    font.setBold(style.bold);
    font.setItalic(style.italic);
    font.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::NoFontMerging | QFont::ForceOutline));
    const QRawFont found = QRawFont::fromFont(font);
    return found.familyName().compare(face, Qt::CaseInsensitive) == 0 ? found : QRawFont();
}

} // namespace

bool isInstalled(const QString &face)
{
    return isShippedFace(face) || !installedFont(face, {}).fontTable("head").isEmpty();
}

QByteArray installedFace(const QString &face, const FontStyle &style)
{
    const QRawFont font = installedFont(face, style);
    QList<Table> tables;
    for (const char *tag : OutlineTables) {
        if (const QByteArray bytes = font.fontTable(tag); !bytes.isEmpty())
            tables.append({tag, bytes});
    }
    return tables.isEmpty() ? QByteArray() : fontFileOf(tables);
}

QByteArray shippedFace(const QString &folder, const FontStyle &style)
{
    const QString name = style.bold && style.italic ? QStringLiteral("BoldItalic")
                         : style.bold               ? QStringLiteral("Bold")
                         : style.italic             ? QStringLiteral("Italic")
                                                    : QStringLiteral("Regular");
    QFile file(QStringLiteral("%1LiberationSans-%2.ttf").arg(folder, name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool isShippedFace(const QString &face) { return face.compare(ShippedFace, Qt::CaseInsensitive) == 0; }

} // namespace graphics
