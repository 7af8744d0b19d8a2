#include "common/run_time_error.h"
#include "graphics/font_bytes.h"
#include "graphics/font_store.h"
#include "graphics/glyph_lists.h"
#include "platform/file_replace.h"
#include "support/scripted_prompts.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace graphics {

namespace {

using common::RunTimeError;

struct StoreWorld
{
    StoreWorld()
    {
        folders.program = QStringLiteral(MORVEL_PROGRAM_DIR "/");
        folders.applicationData = root.path() + QLatin1Char('/');
    }

    void write(const QString &path, const QByteArray &bytes) { platform::replaceFile(path, bytes); }
    bool isThere(const QString &path) const { return QFile::exists(path); }

    QTemporaryDir root;
    platform::Folders folders;
    platform::NoProgress progress;
    test::ScriptedPrompts prompts;
    FontStore store{folders, prompts};
    const FontRequest request{QStringLiteral("Arial"), 12, {}};
};

TEST(FontStore, makesOnlyWhatIsMissing)
{
    StoreWorld world;
    EXPECT_THROW(world.store.open(world.request), RunTimeError);
    ASSERT_TRUE(world.store.ensure(world.request, world.progress));
    const QString standard = world.store.standardPath(world.request);
    const QString extended = world.store.extendedPath(world.request);
    EXPECT_TRUE(world.isThere(standard) && world.isThere(extended));

    world.write(standard, "kept");
    EXPECT_TRUE(world.store.ensure(world.request, world.progress));
    EXPECT_EQ(platform::readFile(standard), "kept");
    QFile::remove(extended);
    EXPECT_TRUE(world.store.ensure(world.request, world.progress));
    EXPECT_TRUE(world.isThere(extended));
    EXPECT_NE(platform::readFile(standard), "kept");

    world.prompts.expectMessage(FontTooLarge);
    EXPECT_FALSE(world.store.ensure({world.request.face, 999, {}}, world.progress));
}

TEST(FontStore, keepsADecodedFontUntilOneOfItsFilesChanges)
{
    StoreWorld world;
    ASSERT_TRUE(world.store.ensure(world.request, world.progress));
    const auto first = world.store.open(world.request);
    EXPECT_EQ(world.store.open(world.request), first);

    world.write(world.store.extendedPath(world.request),
                test::fontFile(ExtendedGlyphs, 3, {{0, {1, 1, 0, {7}}}}));
    const auto second = world.store.open(world.request);
    EXPECT_NE(second, first);
    EXPECT_EQ(second->glyph(u'!')->coverage, std::vector<quint8>{7});
    EXPECT_EQ(second->glyph(u'H')->coverage, first->glyph(u'H')->coverage);

    ASSERT_TRUE(world.store.generate(world.request, world.progress));
    EXPECT_EQ(world.store.open(world.request)->glyph(u'!')->coverage, first->glyph(u'!')->coverage);
}

TEST(FontStore, refusesFilesThatCannotBeRead)
{
    StoreWorld world;
    ASSERT_TRUE(world.store.ensure(world.request, world.progress));
    world.store.open(world.request);
    const QString standard = world.store.standardPath(world.request);
    const QByteArray whole = platform::readFile(standard);
    world.write(standard, whole.chopped(1));
    EXPECT_THROW(world.store.open(world.request), RunTimeError);
    world.write(standard, whole);
    EXPECT_NO_THROW(world.store.open(world.request));
    QFile::remove(standard);
    EXPECT_THROW(world.store.open(world.request), RunTimeError);
}

} // namespace

} // namespace graphics
