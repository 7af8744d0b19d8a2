#include "support/scripted_prompts.h"
#include "variables/xvr.h"

#include <gtest/gtest.h>

namespace {

using namespace variables;

bool read(const QByteArray &text, Catalogue &catalogue, XvrKind kind = XvrKind::Variables)
{
    test::ScriptedPrompts prompts;
    return readXvr(text, "list.xvr", kind, catalogue, ",", prompts);
}

TEST(Xvr, aBlockIsWrittenLineByLineAndReadBack)
{
    const auto record = [](auto... fields) { return VariableRecord{fields...}; };
    Catalogue catalogue;
    catalogue.live[2] =
        record("", "OIL_T", "Oil", 2, true, false, true, 5, -40.0F, 1e7F, 4, -1.0F, 12.5F, 3.0F, 6, "celsius",
               QStringList{"celsius", "kelvin"}, true, "var_0003\r\n+1", QString::fromLatin1("\0 \xB5m ", 5),
               "Oil temperature", 0.5F, 0.00005F, 3, quint8{200});
    const QByteArray written = writeXvr(catalogue.live, ",");
    for (const char *part :
         {"<VariableList>\r\n   <Data>\r\n     <IndexNumber>2</IndexNumber>\r\n",
          "\r\n     <Enabled>-1</Enabled>\r\n     <AlwaysOn>0</AlwaysOn>\r\n",
          "     <AllowTransformations>celsius#kelvin</AllowTransformations>\r\n"
          "     <UseCustomTrans>-1</UseCustomTrans>\r\n"
          "     <CustomTransformation>var_0003#$+1</CustomTransformation>\r\n"
          "     <CustomUnits>\xB5m</CustomUnits>\r\n"
          "     <Description>Oil temperature</Description>\r\n"
          "     <SmoothingTime>0,5</SmoothingTime>\r\n     <MaximumROC>5E-05</MaximumROC>\r\n"
          "     <calculus>3</calculus>\r\n     <Misc>200</Misc>\r\n   </Data>\r\n\r\n"
          "</VariableList>\r\n"})
        EXPECT_TRUE(written.contains(part)) << written.toStdString();
    catalogue.live[2].CustomUnits = "µm";
    // The block is lost as the last one, and read where the sentinel's comes after it. Only whole corners
    // are the same: those of the filter are written with the locale's mark and read with ".".
    catalogue.live[2].FilterHighVal = 12;
    ASSERT_TRUE(read(writeXvr(catalogue.live, ","), catalogue));
    EXPECT_EQ(catalogue.staging[2].IndexNumber + catalogue.staging[LastIndex].IndexNumber, 0);
    catalogue.live[LastIndex].IndexNumber = LastIndex;
    ASSERT_TRUE(read(writeXvr(catalogue.live, ","), catalogue));
    EXPECT_TRUE(catalogue.staging[2] == catalogue.live[2]);
}

TEST(Xvr, whatDoesNotFitAFieldIsPassedOver)
{
    Catalogue catalogue;
    ASSERT_TRUE(read("<?xml version='1.0'?><a><d><BASENAME>lost</BASENAME><x/></d>"
                     "<d><IndexNumber>3</IndexNumber><Misc>256</Misc><DefaultMin>1e99</DefaultMin>"
                     "<DefaultMax>low</DefaultMax><Calculus>2.5 and more</Calculus>"
                     "<Description><![CDATA[hidden]]></Description></d>"
                     "<d><IndexNumber>8001</IndexNumber><Misc>1</Misc></d>"
                     "<d><IndexNumber>8000</IndexNumber><Misc>1</Misc></d>"
                     "<d><IndexNumber>8000</IndexNumber><Misc>2</Misc></d></a>",
                     catalogue));
    VariableRecord expected;
    expected.IndexNumber = 3;
    expected.AllowTransformations = QStringList{""};
    expected.calculus = 2;
    EXPECT_TRUE(catalogue.staging[3] == expected);
    EXPECT_EQ(catalogue.staging[LastIndex].Misc, 1);
}

TEST(Xvr, unitsBeginAfterTwoBlankRows)
{
    Catalogue catalogue;
    ASSERT_TRUE(read("<?xml version='1.0'?>\r\n<u><g><UnitName>kmh</UnitName><Uniit>km/h</Uniit></g>"
                     "<g><UnitName>mph</UnitName><Conversion>x/1.609</Conversion></g></u>",
                     catalogue, XvrKind::Units));
    EXPECT_EQ(catalogue.units, (UnitTable{{}, {}, {"kmh", "", "", "km/h"}, {"mph", "", "x/1.609", ""}}));
}

TEST(Xvr, damageIsToldAndChangesNothing)
{
    Catalogue catalogue;
    catalogue.staging[2].BaseName = "kept";
    test::ScriptedPrompts prompts;
    prompts.expectMessage({});
    EXPECT_FALSE(readXvr("<a>\r\n  <b>1 < 2</b></a>", "/x.xvr", XvrKind::Variables, catalogue, ".", prompts));
    const QString text = prompts.shown().back().text;
    EXPECT_TRUE(text.startsWith("Your XVR Document failed to loaddue the following error.\r\nError #: "));
    EXPECT_TRUE(text.endsWith("Source Text: <b>1 < 2</b></a>\r\nDocument URL: /x.xvr")) << qPrintable(text);
    EXPECT_EQ(catalogue.staging[2].BaseName, "kept");
}

} // namespace
