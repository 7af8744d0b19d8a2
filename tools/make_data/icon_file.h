#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>

namespace make_data {

// An .ico file that holds several sizes (none above 256 pixels), each as a bitmap, which is read faster than
// the PNG that Qt's own writer puts in, and it puts in one only.
QByteArray iconFile(const QList<QImage> &images);

} // namespace make_data
