#include "controls/bar_graph/bar_graph.h"
#include "controls/bitmap/bitmap.h"
#include "controls/digital_display/digital_display.h"
#include "controls/gauge/gauge.h"
#include "controls/video_source/video_source.h"

#include <gtest/gtest.h>

namespace {

using namespace controls;
using common::RunTimeError;

constexpr platform::Screen Usual;
// 0x80000005 is a system colour: negative as a signed number.
const QString GaugeTexts = "1950.5|1965|6025|360|66|59|3|-2147483643|-90|45|-0.25|1E+07|0.1|7|1.5|2";

template <typename Values>
Values valuesOf(const PropertyTable &table, const QString &texts, const QString &mark = ".")
{
    Values values;
    deserialise(table, values, texts.split('|'), mark);
    return values;
}

// What becomes of texts that are taken and written again.
template <typename Values>
QString again(const PropertyTable &table, const QString &texts, const QString &mark = ".")
{
    return serialise(table, valuesOf<Values>(table, texts, mark), Usual, mark).join('|');
}

TEST(Serialise, elementsComeInTheOrderOfTheFamilyInTheLocalesNumbers)
{
    const QString inComma = QString(GaugeTexts).replace('.', ',');
    EXPECT_EQ(again<GaugeValues>(gaugeProperties(), inComma, ","), inComma);
    // A colour stands in it twice; the second one counts.
    const QString display =
        "1350.5|300|0|1|0|Block|14|1|0|255|4864815|1.50|2|360|66|255|2|-0.25|100|1.5|1|128|0|3|0.1|9";
    EXPECT_EQ(again<DigitalDisplayValues>(digitalDisplayProperties(), display), display);
    const QString bitmap = "1830|960|200|a.bmp|b.bmp|6025|1|2|0.5|0|3|-1.5|100|0.25";
    EXPECT_EQ(again<BitmapValues>(bitmapProperties(), bitmap), bitmap);
    const QString video = "2700|2160|3|4|5|6|2|255|1|3|9|7|100|101|102|103|-1.5|100|0.5|6025";
    EXPECT_EQ(again<VideoSourceValues>(videoSourceProperties(), video), video);
    const auto values = valuesOf<VideoSourceValues>(videoSourceProperties(), video);
    EXPECT_EQ(QList<int>({values.curBottomBorderWidth, values.curMirror, values.curHue}),
              QList<int>({4, 9, 102}));
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
    for (const QStringList &texts : refused)
        EXPECT_THROW(valuesOf<GaugeValues>(gaugeProperties(), texts.join('|')), RunTimeError) << texts.size();
    // text that is no number counts as 0
    EXPECT_EQ(valuesOf<GaugeValues>(gaugeProperties(), QStringList(17, "rubbish").join('|')).curMax, 0);
}

TEST(PropertyTable, valuesPassByNameAndInTheirKindOnly)
{
    BitmapValues values;
    for (const auto &[writer, value] : {std::pair<const char *, PropertyValue>{"newSourceImg", 1},
                                        {"newFileName", 1.0F},
                                        {"newVarID", "1"},
                                        {"newAlfa", 256},
                                        {"newAlfa", QImage()}})
        EXPECT_THROW(bitmapProperties().writer(writer)->set(values, value), RunTimeError) << writer;
    EXPECT_EQ(barGraphProperties().writer(""), nullptr);       // the computed size has no writer
    EXPECT_EQ(digitalDisplayProperties().reader(""), nullptr); // nor has an element a name
}

} // namespace
