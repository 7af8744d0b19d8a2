#include "common/bytes.h"
#include "common/code_page.h"

#include <gtest/gtest.h>

namespace {

using namespace common;

TEST(CodePage, everyByteSurvivesAndForeignCharactersBecomeQuestionMarks)
{
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte)
        all.append(static_cast<char>(byte));
    EXPECT_EQ(toCodePage(fromCodePage(all)), all);
    EXPECT_EQ(fromCodePage("\x80 \x9E \xB0\x43 \xFF"), QString("€ ž °C ÿ"));
    EXPECT_EQ(toCodePage("“5 µ” Ω 😀!"), "\x93\x35 \xB5\x94 ? ?!");
    EXPECT_EQ(toCodePage("0\u066B1"), "0.1"); // must not become 1
}

TEST(FixedText, isTextThenOneNulThenBlanks)
{
    ByteWriter writer;
    for (const char *text : {"AB", "", "ABCD", "ABCDEFG"})
        writer.putFixedText(text, 5);
    EXPECT_EQ(writer.bytes(), QByteArray("AB\0  "
                                         "\0    "
                                         "ABCD\0"
                                         "ABCD\0",
                                         20));
    EXPECT_EQ(cutAtNul(writer.bytes()), "AB");
    EXPECT_EQ(cutAtNul("no end"), "no end");
}

TEST(ByteReader, readsLittleEndianAndNothingPastTheEnd)
{
    const QByteArray bytes = QByteArray::fromHex("0102000000800000803F0A0B0C");
    ByteReader reader(bytes);
    EXPECT_EQ(reader.get<quint16>(), 0x0201);
    EXPECT_EQ(reader.get<qint32>(), std::numeric_limits<qint32>::min());
    EXPECT_EQ(reader.get<float>(), 1.0F);
    EXPECT_EQ(reader.get(1), "\x0A");
    EXPECT_FALSE(reader.failed());
    EXPECT_EQ(reader.get<qint32>(), 0); // two bytes are left
    EXPECT_TRUE(reader.failed());
    EXPECT_EQ(reader.get<quint8>(), 0); // a read that would fit comes too late
    ByteReader fresh(bytes);
    EXPECT_TRUE(fresh.get(-1).isEmpty());
    EXPECT_TRUE(fresh.failed());
}

} // namespace
