#include "fuzz/targets.h"
#include "platform/file_replace.h"

#include <QDir>

#include <gtest/gtest.h>

namespace {

// What fuzzing found worth keeping, for every target.
TEST(Corpus, keepsEveryPromise)
{
    const std::pair<const char *, bool (*)(QByteArrayView)> targets[] = {{"layout", &fuzz::layout},
                                                                         {"definitions", &fuzz::definitions},
                                                                         {"picture", &fuzz::picture},
                                                                         {"font", &fuzz::font},
                                                                         {"expression", &fuzz::expression}};
    for (const auto &[name, keepsPromises] : targets) {
        const QDir folder(QStringLiteral(FUZZ_CORPUS "/fuzz_") + name);
        const QFileInfoList files = folder.entryInfoList(QDir::Files);
        EXPECT_FALSE(files.isEmpty()) << name;
        for (const QFileInfo &file : files)
            EXPECT_TRUE(keepsPromises(platform::readFile(file.filePath()))) << qPrintable(file.filePath());
    }
}

} // namespace
