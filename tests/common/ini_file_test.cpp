#include "common/ini_file.h"

#include <gtest/gtest.h>

namespace {

using common::IniFile;

TEST(IniFile, readsWithTheHabitsOfProfileFiles)
{
    static const char text[] =
        "; [S] first=comment\nfirst=outside any section\r\n[ S ]\r\nFirst = 80 \r\nFIRST=99\n"
        "quoted=  \" two blanks  \"\ntwice=\"'x'\"\nlonely=\"\nempty=\nnul=ab\0cd\na=b=c ;d\n"
        "accent=\xE9\nnot a pair\n[T]\n[s]\nlate=1";
    const IniFile file = IniFile::parse(QByteArray(text, sizeof text - 1));
    const std::tuple<const char *, const char *, int, const char *> cases[] = {
        {"s", "FIRST", 100, "80"},  {"S", "quoted", 100, " two blanks  "},
        {"S", "quoted", 5, " two"}, {"S", "twice", 100, "'x'"},
        {"S", "lonely", 100, "\""}, {"S", "empty", 100, ""},
        {"S", "nul", 100, "ab"},    {"S", "a", 100, "b=c ;d"},
        {"S", "accent", 100, "é"},  {"S", "not a pair", 100, "fallback"},
        {"S", "late", 5, "fall"}, // only the first section of a name counts
    };
    for (const auto &[section, key, buffer, expected] : cases)
        EXPECT_EQ(file.read(section, key, "fallback", buffer), QString(expected)) << section << key;
}

TEST(IniFile, changesOnlyTheLinesItIsToldTo)
{
    IniFile file = IniFile::parse("; mine\n[S]\nkeep = \"as it is\"\nold=1\n?? \xFF\n\n[T]\nold=2\ngone=3\n");
    EXPECT_TRUE(file.write("s", "OLD", "7"));
    EXPECT_TRUE(file.write("S", "new", " x"));
    EXPECT_TRUE(file.write("T", "gone", std::nullopt));
    EXPECT_TRUE(file.write("T", "missing", std::nullopt));
    EXPECT_TRUE(file.write("U", "k", ""));
    const QByteArray head = "; mine\r\n[S]\r\nkeep = \"as it is\"\r\nOLD=7\r\n?? \xFF\r\nnew=\" x\"\r\n\r\n";
    EXPECT_EQ(file.bytes(), head + "[T]\r\nold=2\r\n[U]\r\nk=\r\n");
    file.removeSection("t");
    EXPECT_EQ(file.bytes(), head + "[U]\r\nk=\r\n");
}

// Names and values that users type.
TEST(IniFile, readsBackWhateverItTakesAndRefusesTheRest)
{
    for (const char *text : {"plain", " padded ", "\"quoted\"", "'q'", "\"", "\"a\" and \"b\"", "a=b", "[x]",
                             ";x", "", "é€", "\tx"}) {
        IniFile file;
        ASSERT_TRUE(file.write("QLAGAUGE/1", "0", text)) << text;
        EXPECT_EQ(IniFile::parse(file.bytes()).read("QLAGAUGE/1", "0", "fallback", 100), QString(text));
    }
    const auto expectRefused = [](const QString &section, const QString &key, const QString &value) {
        IniFile file = IniFile::parse("[S]\nk=1\n");
        EXPECT_FALSE(file.write(section, key, value)) << qPrintable(section + key + value);
        EXPECT_EQ(file.bytes().toStdString(), "[S]\r\nk=1\r\n");
    };
    for (const char *key : {"a=b", "[a", " ;a", "  ", "a\nb", "a\rb", "aΩ"}) // files have no letter Omega
        expectRefused("S", key, "1");
    for (const char *section : {"S]T", " ", "S\nT", "Ω"})
        expectRefused(section, "a", "1");
    for (const QString &value : {QString("1\n[T]"), QString("1\rx"), QString(QChar(0))})
        expectRefused("S", "a", value);
}

} // namespace
