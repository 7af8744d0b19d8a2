#include "controls/bar_graph/bar_graph.h"
#include "controls/bitmap/bitmap.h"
#include "controls/custom_dial/custom_dial.h"
#include "controls/digital_display/digital_display.h"
#include "controls/gauge/gauge.h"
#include "controls/text_tag/text_tag.h"
#include "controls/track_map/track_map.h"
#include "controls/video_source/video_source.h"

#include <gtest/gtest.h>

namespace {

using namespace controls;
using common::RunTimeError;

constexpr platform::Screen Usual;
// 0x80000005 is a system colour: negative as a signed number.
const QString GaugeTexts = "1950.5|1965|6025|360|66|59|3|-2147483643|-90|45|-0.25|1E+07|0.1|7|1.5|2";
// A colour stands in it twice; the second one counts.
const QString DisplayTexts =
    "1350.5|300|0|1|0|Block|14|1|0|255|4864815|1.50|2|360|66|255|2|-0.25|100|1.5|1|128|0|3|0.1|9";
const QString TagTexts = "1350|300|1|0|1|Arial|9|0|1|16711680|7|Oil|2|-0.25|100|5|204|3|0.5|9";
const QString BitmapTexts = "1830|960|200|a.bmp|b.bmp|6025|1|2|0.5|0|3|-1.5|100|0.25";
const QString VideoTexts = "2700|2160|3|4|5|6|2|255|1|3|9|7|100|101|102|103|-1.5|100|0.5|6025";
const QString BarTexts = "1950|450|2|20|16711680|100|-5.5|50|1|204|3|0.5|9";
const QString DialTexts = "3150|3000|2|65|3|255|-140|130|-1.5|240|7|153|3|20|0.7|0.85|0.02|1|16777215|"
                          "Arial                         |2|4|18|5|6|8|0.1|0.34|16711680|SPEED               "
                          "          |9|160|200|0.75|0.8|65535|65280|10";
const QString TrackMapTexts = "1650|900|3|255|0|8|16711680|2|4|65280|128|2|300|150|1|5|6|7|100";

// What the rows of other families hold besides: text of a fixed width, elements without a name, a picture.
struct SampleValues : ControlValues
{
    common::FixedString<6> caption{"SPEED"};
    common::Colour colour{255};
    quint8 hidden = 9;
    QImage picture;
};

const PropertyTable &sampleProperties()
{
    using V = SampleValues;
    static constexpr std::array Rows{
        property<&V::caption>("curCaption", "newCaption"), property<&V::colour>("curColour", "newColour"),
        property<&V::hidden>("curHidden", "newHidden").notSerialised(),
        property<&V::picture>("curPicture", "newPicture"), element<&V::colour>()};
    static constexpr PropertyTable Table{Rows};
    return Table;
}

QString textsOf(const PropertyTable &table, const ControlValues &values, const QString &mark = ".")
{
    return serialise(table, values, Usual, mark).join('|');
}

template <typename Values>
Values valuesOf(const PropertyTable &table, const QString &texts, const QString &mark = ".")
{
    Values values;
    deserialise(table, values, texts.split('|'), mark);
    return values;
}

TEST(Serialise, eachFamilyHasItsElementsInItsOrderInTheLocalesNumbers)
{
    const auto gauge = valuesOf<GaugeValues>(gaugeProperties(), GaugeTexts);
    EXPECT_EQ(gauge.box, (Box{0, 0, 1950.5F, 1965})); // its place is the paste's
    EXPECT_EQ(gauge.curColour.packed(), 0x80000005U);
    EXPECT_EQ(textsOf(gaugeProperties(), gauge), GaugeTexts);
    const QString inComma = QString(GaugeTexts).replace('.', ',');
    EXPECT_EQ(textsOf(gaugeProperties(), gauge, ","), inComma);
    EXPECT_EQ(textsOf(gaugeProperties(), valuesOf<GaugeValues>(gaugeProperties(), inComma, ",")), GaugeTexts);

    const auto bar = valuesOf<BarGraphValues>(barGraphProperties(), BarTexts);
    EXPECT_EQ(textsOf(barGraphProperties(), bar), BarTexts);
    EXPECT_EQ(barGraphProperties().reader("curWidth")->get(bar, {12, 10}), PropertyValue(150.0F));
    EXPECT_EQ(barGraphProperties().reader("curHeight")->get(bar, {12, 10}), PropertyValue(30.0F));

    const auto display = valuesOf<DigitalDisplayValues>(digitalDisplayProperties(), DisplayTexts);
    EXPECT_EQ(textsOf(digitalDisplayProperties(), display), DisplayTexts);
    const auto tag = valuesOf<TextTagValues>(textTagProperties(), TagTexts);
    EXPECT_EQ(textsOf(textTagProperties(), tag), TagTexts);
    EXPECT_EQ(textsOf(bitmapProperties(), valuesOf<BitmapValues>(bitmapProperties(), BitmapTexts)),
              BitmapTexts);
    const auto video = valuesOf<VideoSourceValues>(videoSourceProperties(), VideoTexts);
    EXPECT_EQ(textsOf(videoSourceProperties(), video), VideoTexts);
    EXPECT_TRUE(video.curBottomBorderWidth == 4 && video.curMirror == 9 && video.curHue == 102);
    const auto map = valuesOf<TrackMapValues>(trackMapProperties(), TrackMapTexts);
    EXPECT_EQ(textsOf(trackMapProperties(), map), TrackMapTexts);

    const auto dial = valuesOf<CustomDialValues>(customDialProperties(), DialTexts);
    EXPECT_EQ(textsOf(customDialProperties(), dial), DialTexts);

    EXPECT_EQ(textsOf(sampleProperties(), SampleValues()), "0|0|SPEED |255|255");
    const auto sample = valuesOf<SampleValues>(sampleProperties(), "1|2|revolutions|3|4");
    EXPECT_EQ(textsOf(sampleProperties(), sample), "1|2|revolu|4|4");
    EXPECT_EQ(sample.hidden, 9);
}

TEST(Serialise, aPivotThatWasNeverSetIsHalfTheBoxAndIsStoredOnceItIsTaken)
{
    // 1950.5 / 15 / 2 is 65.02, 1965 / 15 / 2 is 65.5
    const QString unset = QString(GaugeTexts).replace("|360|66|", "|0|0|");
    const auto values = valuesOf<GaugeValues>(gaugeProperties(), unset);
    EXPECT_EQ(textsOf(gaugeProperties(), values), QString(GaugeTexts).replace("|360|66|", "|65|66|"));
    EXPECT_TRUE(values.curCenterX == 0 && values.curCenterY == 0);
    const GaugeValues taken = withPivot(values, Usual);
    EXPECT_TRUE(taken.curCenterX == 65 && taken.curCenterY == 66);
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
    SampleValues values;
    QImage picture(2, 1, QImage::Format_RGB32);
    picture.fill(Qt::red);
    const PropertyRow &row = *sampleProperties().writer("newPicture");
    row.set(values, picture);
    EXPECT_EQ(sampleProperties().reader("curPicture")->get(values, Usual), PropertyValue(picture));
    for (const auto &[writer, value] : {std::pair<const char *, PropertyValue>{"newPicture", 1},
                                        {"newCaption", 1.0F},
                                        {"newColour", "1"},
                                        {"newHidden", 256},
                                        {"newHidden", picture}})
        EXPECT_THROW(sampleProperties().writer(writer)->set(values, value), RunTimeError) << writer;
    EXPECT_EQ(gaugeProperties().writer("curMax"), nullptr);
    EXPECT_EQ(barGraphProperties().writer(""), nullptr); // the computed size has no writer
    EXPECT_EQ(sampleProperties().reader(""), nullptr);   // nor has an element a name
}

} // namespace
