#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>

namespace make_data {

// An .ico file that holds several sizes (none above 256 pixels), each as PNG. Qt's own writer holds one only.
QByteArray iconFile(const QList<QImage> &images);

} // namespace make_data
