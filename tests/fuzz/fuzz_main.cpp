#include "fuzz/targets.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    if (!fuzz::FUZZ_TARGET(QByteArrayView(data, static_cast<qsizetype>(size))))
        std::abort();
    return 0;
}
