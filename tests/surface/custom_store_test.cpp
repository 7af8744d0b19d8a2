#include "surface/custom_store.h"

#include <gtest/gtest.h>

namespace {

using common::IniFile;
using namespace surface;

const controls::Family &Gauges = *controls::familyOf(controls::ControlType::Gauge);

QString listed(const IniFile &file)
{
    QStringList entries;
    for (const CustomEntry &entry : customEntries(file, Gauges))
        entries.append(QString("%1 %2 %3").arg(entry.place).arg(entry.key, entry.thumbnail).trimmed());
    return entries.join("; ");
}

TEST(CustomStore, KeepsNumbersKeysThumbnailsAndTextsTogether)
{
    const QByteArray start = "[QLAGAUGE]\r\nCNT=3\r\n1=aone\r\n2=aTwo\r\n3=athree\r\naone=1\r\naTwo=2\r\n"
                             "athree=3\r\n[QLAGAUGE_FILE]\r\n1=x.bmp\r\n3=z.bmp\r\n[QLAGAUGE/1]\r\n0=10\r\n"
                             "[QLAGAUGE/2]\r\n0=20\r\nmine=2\r\n[QLAGAUGE/3]\r\n0=30\r\n";
    IniFile file = IniFile::parse(start);
    deleteEntry(file, Gauges, 1);
    EXPECT_EQ(
        file.bytes().toStdString(),
        "[QLAGAUGE]\r\nCNT=2\r\naTwo=1\r\nathree=2\r\n1=aTwo\r\n2=athree\r\n[QLAGAUGE_FILE]\r\n2=z.bmp\r\n"
        "[QLAGAUGE/1]\r\n0=20\r\nmine=2\r\n[QLAGAUGE/2]\r\n0=30\r\n");
    deleteEntry(file, Gauges, 2);
    renameEntry(file, Gauges, 1, "aII");
    defineEntry(file, Gauges, customKey(Gauges, " a=b "), "new.bmp", {"40", "two\nlines"});
    EXPECT_EQ(file.bytes().toStdString(),
              "[QLAGAUGE]\r\nCNT=2\r\n1=aII\r\naII=1\r\n2=aa=b\r\n[QLAGAUGE_FILE]\r\n2=new.bmp\r\n"
              "[QLAGAUGE/1]\r\n0=20\r\nmine=2\r\n[QLAGAUGE/2]\r\n0=40\r\n1=twolines\r\n");
}

TEST(CustomStore, LosesNothingOfAFileThatWasEditedIntoNonsense)
{
    const std::string longName(80, 'x');
    const std::tuple<std::string, std::string, int> cases[] = {
        {"", "", 1},
        {"CNT=999999999", "", 1},
        {"CNT=1\n1=ax\n2=ay", "1 ax; 2 ay", 3},
        {"CNT=-7\n1=ax\n4=ay\n01=az\n0=az\n-1=az\n99999999999=az\n3=", "1 ax; 4 ay", 5},
        {"1=afoo\n2=afoo\n3=afoo 2\n4=aANALOGDIAL", "1 afoo; 2 afoo 2; 3 afoo 2 2; 4 aANALOGDIAL 2", 5},
        {"1=Speed\n1=atwice\n2=aFoo\n3=afoo", "1 aSpeed; 2 aFoo; 3 afoo", 4},
        {"1=a" + longName, "1 a" + longName.substr(0, 48), 2},
        {"1=acnt\nacnt=7\n[QLAGAUGE_FILE]\n1=" + longName + "\n[QLAGAUGE/2]\n0=lost",
         "1 acnt " + longName.substr(0, 19), 3},
    };
    for (const auto &[text, expected, nextPlace] : cases) {
        SCOPED_TRACE(text);
        IniFile file = IniFile::parse("[QLAGAUGE]\n" + QByteArray::fromStdString(text));
        EXPECT_EQ(listed(file).toStdString(), expected);
        EXPECT_EQ(defineEntry(file, Gauges, "anew", "", {"5"}).place, nextPlace);
        EXPECT_EQ(listed(file).toStdString(),
                  expected + (expected.empty() ? "" : "; ") + std::to_string(nextPlace) + " anew");
        EXPECT_EQ(file.read("QLAGAUGE", "CNT", "", 10), QString::number(nextPlace));
    }
    IniFile full = IniFile::parse("[QLAGAUGE]\n9999=ax\n");
    defineEntry(full, Gauges, "anew", "", {});
    EXPECT_EQ(listed(full), "1 anew; 9999 ax");
    const IniFile texts =
        IniFile::parse("[QLAGAUGE/1]\n1=" + QByteArray(300, 'y') + "\n1=z\n-1=z\n9=z\n02=z");
    EXPECT_EQ(customTexts(texts, Gauges, 1, 3), (QStringList{"0", QString(199, 'y'), "0"}));
}

} // namespace
