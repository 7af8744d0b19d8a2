#include "fuzz/targets.h"

#include <QDir>

#include <gtest/gtest.h>

// What fuzzing found worth keeping.
TEST(GraphicsCorpus, keepsEveryPromise)
{
    for (const auto &[name, target] :
         {std::pair{"fuzz_font", &fuzz::font}, {"fuzz_picture", &fuzz::picture}}) {
        const QDir folder(QStringLiteral(FUZZ_CORPUS "/") + QLatin1String(name));
        const QFileInfoList entries = folder.entryInfoList(QDir::Files);
        EXPECT_FALSE(entries.isEmpty());
        for (const QFileInfo &entry : entries) {
            QFile file(entry.filePath());
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            EXPECT_TRUE(target(file.readAll())) << qPrintable(entry.filePath());
        }
    }
}
