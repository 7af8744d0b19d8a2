#pragma once

#include "common/ini_file.h"
#include "controls/families.h"

#include <QStringList>

// The custom entries of the control library, saved configurations of single controls, as they stand in their
// file: for each family its section with the number of entries and their keys by place and places by key, one
// with the names of the thumbnails, and one for each entry with its serialised texts. Entries go by their
// place; the rest of a file that somebody has edited may say what it likes.
namespace surface {

struct CustomEntry
{
    int place;         // from 1
    QString key;       // letter of the family and name; no two in a family are alike
    QString thumbnail; // file name; empty when none is known

    QString name() const { return key.mid(1); }
};

// In the order of their places. A key that stands there twice has a number in its later places.
QList<CustomEntry> customEntries(const common::IniFile &file, const controls::Family &family);

// The key under which an entry of this name is kept, as the file can hold it.
QString customKey(const controls::Family &family, const QString &name);

// The first `count` texts of an entry, "0" for each that is missing.
QStringList customTexts(const common::IniFile &file, const controls::Family &family, int place,
                        qsizetype count);

// Puts an entry behind all others or, where that has no room, into a gap; the one that was made. Throws
// RunTimeError when there is none.
CustomEntry defineEntry(common::IniFile &file, const controls::Family &family, const QString &key,
                        const QString &thumbnail, const QStringList &texts);
void renameEntry(common::IniFile &file, const controls::Family &family, int place, const QString &key);
// The entries behind it move up by one place.
void deleteEntry(common::IniFile &file, const controls::Family &family, int place);
void setThumbnail(common::IniFile &file, const controls::Family &family, int place, const QString &name);

} // namespace surface
