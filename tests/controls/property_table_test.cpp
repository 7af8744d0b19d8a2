#include "controls/bar_graph/bar_graph.h"
#include "controls/gauge/gauge.h"

#include <gtest/gtest.h>

namespace {

using namespace controls;
using common::RunTimeError;

constexpr platform::Screen Usual;
// 0x80000005 is a system colour: negative as a signed number.
const QString GaugeTexts = "1950.5|1965|6025|360|66|59|3|-2147483643|-90|45|-0.25|1E+07|0.1|7|1.5|2";
const QString BarTexts = "1950|450|2|20|16711680|100|-5.5|50|1|204|3|0.5|9";

QString textsOf(const PropertyTable &table, const ControlValues &values, const QString &mark = ".")
{
    return serialise(table, values, Usual, mark).join('|');
}

TEST(Serialise, gaugeHasSixteenElementsInTheLocalesNumbers)
{
    GaugeValues values;
    deserialise(gaugeProperties(), values, GaugeTexts.split('|'), Usual, ".");
    EXPECT_EQ(values.box, (Box{0, 0, 1950.5F, 1965})); // its place is the paste's
    EXPECT_EQ(values.curColour.packed(), 0x80000005U);
    EXPECT_EQ(textsOf(gaugeProperties(), values), GaugeTexts);
    const QString inComma = QString(GaugeTexts).replace('.', ',');
    EXPECT_EQ(textsOf(gaugeProperties(), values, ","), inComma);
    GaugeValues copy;
    deserialise(gaugeProperties(), copy, inComma.split('|'), Usual, ",");
    EXPECT_EQ(textsOf(gaugeProperties(), copy), GaugeTexts);
    // A pivot that was never set is half the box (1965 / 15 / 2 is 65.5). A copy keeps that, taking it does
    // not.
    values.curCenterY = 0;
    deserialise(gaugeProperties(), copy, textsOf(gaugeProperties(), values).split('|'), Usual, ".");
    EXPECT_EQ(copy.curCenterY, 66);
    EXPECT_EQ(values.curCenterY, 0);
    deserialise(gaugeProperties(), copy, QString(GaugeTexts).replace("|360|", "|0|").split('|'), Usual, ".");
    EXPECT_EQ(copy.curCenterX, 65);
}

TEST(Serialise, barGraphHasThirteenElements)
{
    BarGraphValues values;
    deserialise(barGraphProperties(), values, BarTexts.split('|'), Usual, ".");
    EXPECT_EQ(textsOf(barGraphProperties(), values), BarTexts);
    EXPECT_EQ(barGraphProperties().reader("curWidth")->get(values, {12, 10}), PropertyValue(150.0F));
    EXPECT_EQ(barGraphProperties().reader("curHeight")->get(values, {12, 10}), PropertyValue(30.0F));
}

TEST(Deserialise, refusesWhatAnotherKindOrADamagedStoreHolds)
{
    const QStringList good = GaugeTexts.split('|');
    std::vector<QStringList> refused{{}, good.mid(0, 15)};
    for (const auto &[element, text] :
         {std::pair{0, "1E+39"}, {2, "2147483648"}, {5, "256"}, {5, "-1"}, {8, "40000"}}) {
        refused.push_back(good);
        refused.back()[element] = text;
    }
    for (const QStringList &texts : refused) {
        GaugeValues values;
        EXPECT_THROW(deserialise(gaugeProperties(), values, texts, Usual, "."), RunTimeError) << texts.size();
    }
    GaugeValues values;
    EXPECT_THROW(gaugeProperties().writer("newMax")->set(values, QString("1")), RunTimeError);
    EXPECT_EQ(gaugeProperties().writer("curMax"), nullptr);
    EXPECT_EQ(barGraphProperties().writer(""), nullptr); // the computed size has no writer
    deserialise(gaugeProperties(), values, QStringList(17, "rubbish"), Usual, ".");
    EXPECT_EQ(values.curMax, 0); // text that is no number counts as 0
}

} // namespace
