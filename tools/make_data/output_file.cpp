#include "make_data/output_file.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace make_data {

bool writeOutput(const QString &path, const QByteArray &bytes)
{
    QFile old(path);
    if (old.open(QIODevice::ReadOnly) && old.readAll() == bytes)
        return true;
    old.close();
    QSaveFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(bytes) == bytes.size() && file.commit();
}

} // namespace make_data
