#pragma once

#include "platform/prompts.h"
#include "variables/catalogue.h"

#include <QByteArray>
#include <QString>

namespace variables {

// XVR, the catalogue as flat XML text in the code page. It is written after every edit and read for exchange.

// The variable list: one block for each slot of the live table that is not empty. Texts are printed as they
// stand, without escaping: a name that holds "<" or "&" makes a file that cannot be read again.
QByteArray writeXvr(const VariableTable &live, const QString &decimalSeparator);

enum class XvrKind { Variables, Units };

// Reads `bytes`, the content of `path`, into the staging table or the units, which it rebuilds. The last
// block of a variable list is stored only when it is the sentinel's: deliberate. A file that does not parse
// is reported with one message, and the tables stay as they were (false).
bool readXvr(const QByteArray &bytes, const QString &path, XvrKind kind, Catalogue &catalogue,
             const QString &decimalSeparator, platform::Prompts &prompts);

} // namespace variables
