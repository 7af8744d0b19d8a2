#pragma once

#include <QByteArrayView>

namespace layoutfile {

// CRC-32 as of IEEE 802.3: polynomial 0xEDB88320, start and final inversion with 0xFFFFFFFF.
quint32 modCRC(QByteArrayView bytes);

} // namespace layoutfile
