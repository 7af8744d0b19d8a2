#include "layoutfile/modCRC.h"

#include <zlib.h>

namespace layoutfile {

quint32 modCRC(QByteArrayView bytes)
{
    const auto *data = reinterpret_cast<const Bytef *>(bytes.data());
    return static_cast<quint32>(crc32_z(0, data, static_cast<z_size_t>(bytes.size())));
}

} // namespace layoutfile
