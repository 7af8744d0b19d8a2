#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>

namespace make_data {

// An .ico file that holds several sizes (none above 256 pixels), each as a bitmap. Qt's own writer stores one
// size, as a PNG, which is read more slowly.
QByteArray iconFile(const QList<QImage> &images);

} // namespace make_data
