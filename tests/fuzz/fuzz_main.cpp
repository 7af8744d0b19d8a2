#include "fuzz/targets.h"

#include <QGuiApplication>

#include <cstdlib>

// Names on cameras are drawn with the desktop's faces.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    if (!fuzz::FUZZ_TARGET(QByteArrayView(data, static_cast<qsizetype>(size))))
        std::abort();
    return 0;
}
