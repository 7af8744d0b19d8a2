#pragma once

#include <QByteArray>
#include <QString>

namespace make_data {

// Makes the folders of `path` and writes the file whole or not at all. A file that holds these bytes already
// is left alone, so that nothing is built from it again. False when it cannot be written.
bool writeOutput(const QString &path, const QByteArray &bytes);

} // namespace make_data
