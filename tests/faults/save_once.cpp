// Saves once as the Save command does, so that a tracer can make its calls fail or kill it.
//
//   save_once PATH NEW KEEP     puts the content of NEW under PATH; the old bytes may be kept in the folder
//   KEEP

#include "platform/file_replace.h"
#include "platform/guards.h"

#include <QFile>

#include <cstdio>
#include <cstdlib>

int main(int argc, char **argv)
{
    if (argc != 4)
        return 64;
    const auto argument = [argv](int i) { return QFile::decodeName(argv[i]); };
    const auto failure = platform::failureOf([&] {
        const QByteArray bytes = platform::readFile(argument(2));
        const auto standing = platform::replaceFile(argument(1), bytes, argument(3));
        std::puts(standing == platform::Standing::Confirmed ? "saved" : "saved, not confirmed");
    });
    if (failure)
        std::puts(qPrintable(*failure));
    return failure ? EXIT_FAILURE : EXIT_SUCCESS;
}
