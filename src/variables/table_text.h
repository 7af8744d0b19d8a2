#pragma once

#include <QList>
#include <QStringList>

namespace variables {

// A block of cells as it lies on the clipboard: cells separated by a tab, rows by CR LF.
QString tableText(const QList<QStringList> &rows);

// The rows and cells of a clipboard text. Rows may end in CR LF, CR or LF; one line end after the last row
// does not begin another one.
QList<QStringList> tableRows(const QString &text);

} // namespace variables
