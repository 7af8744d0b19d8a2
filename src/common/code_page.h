#pragma once

#include <QByteArray>
#include <QString>

namespace common {

// 8-bit text of all binary and settings files: Windows-1252 on every platform. The five bytes that the page
// leaves unassigned stand for the control characters of the same number, so that every byte survives.
QString fromCodePage(QByteArrayView bytes);

// Characters outside the page become "?", but for the Arabic decimal mark, which becomes ".".
QByteArray toCodePage(const QString &text);

} // namespace common
