#include "platform/file_replace.h"
#include "platform/locale.h"
#include "platform/settings_keys.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using namespace platform;

struct Settings : testing::Test
{
    SettingsFile fileOf(const QByteArray &text)
    {
        replaceFile(path, text);
        return SettingsFile(path);
    }
    QTemporaryDir folder;
    QString path = folder.filePath("QLM6ConfigTool.cfg");
};

TEST_F(Settings, numbersAreReadAndPulledIntoTheirBounds)
{
    const std::tuple<NumberKey, const char *, int> cases[] = {
        {keys::Library.top, "893", 854}, // the smaller value is deliberate
        {keys::Library.top, "12895", 12894},
        {keys::GridSize, "\" 120 twips\"", 120},
        {keys::Library.width, "1234567891234", 123456789}, // nine characters fit the buffer
        {keys::Library.width, "1e99", 2147483647},
        {keys::VideoType, "", 0},
        {keys::Design.height, "tall", 434},
    };
    for (const auto &[key, text, expected] : cases)
        EXPECT_EQ(key.read(fileOf(QByteArray("[") + key.section + "]\n" + key.key + '=' + text)), expected)
            << key.section << ' ' << key.key << ' ' << text;
    EXPECT_EQ(keys::VideoType.read(fileOf("")), 1); // a new user's standard
}

TEST(Locale, itsMarksAreOnesThatNumbersAreReadWith)
{
    const std::tuple<QString, QString, QString> cases[] = {
        {",", ",", ";"},   {".", ".", ","}, {"\u066B", "\u066B", ","},
        {" , ", ",", ";"}, {"", ".", ","},  {"'", ".", ","}};
    for (const auto &[mark, decimal, list] : cases) {
        EXPECT_EQ(numberLocale(mark).decimalSeparator, decimal);
        EXPECT_EQ(numberLocale(mark).listSeparator, list);
    }
}

TEST_F(Settings, savedValuesAreThereAtTheNextStart)
{
    SettingsFile file = fileOf("[VISIBLE]\n2=0\nmine=kept\n[design]\nheight=500");
    keys::VideoType.write(file, 0);
    keys::PalPicture.write(file, QString(120, 'p'));
    file.save();
    const SettingsFile next(path);
    EXPECT_EQ(keys::VideoType.read(next), 0);
    EXPECT_EQ(keys::PalPicture.read(next).size(), 99);
    EXPECT_EQ(keys::Visible[2].read(next), 0);
    EXPECT_EQ(next.read("VISIBLE", "mine", {}, 10), "kept");
    EXPECT_TRUE(keys::Design.stored(next));
    EXPECT_FALSE(keys::Functions.stored(next));
}

} // namespace
