#include "controls/bitmap/bitmap.h"
#include "controls/custom_dial/custom_dial.h"
#include "controls/track_map/track_map.h"
#include "controls/video_source/video_source.h"
#include "layoutfile/saved_design.h"
#include "support/block_font.h"
#include "surface/gesture.h"

#include <QDir>

#include <map>
#include <random>

namespace {

using namespace layoutfile;
using controls::ControlType;
using controls::PropertyKind;
using test::DesignWindow;

constexpr qint32 Variables[] = {0, 2, 3, 10, 22, 30, 6001, 6002};

class Chance
{
public:
    explicit Chance(unsigned seed) : m_engine(seed) {}

    int between(int low, int high) { return std::uniform_int_distribution(low, high)(m_engine); }
    qint32 variable() { return Variables[between(0, std::size(Variables) - 1)]; }
    // Of any size, often one that a user types.
    float number()
    {
        const auto typed = static_cast<float>(between(-9999, 9999)) / 100;
        return between(0, 3) > 0 ? typed : std::ldexp(typed, between(-120, 100));
    }
    // Without blanks at its ends, which a layout does not keep.
    QString text(int longest)
    {
        const QString characters = QStringLiteral("abcXYZ0189 .,-+%°é€ ");
        QString made;
        for (int i = between(1, longest); i > 0; --i)
            made += characters[between(0, static_cast<int>(characters.size()) - 1)];
        return made.trimmed().isEmpty() ? QStringLiteral("x") : made.trimmed();
    }
    QImage picture(QSize size)
    {
        QImage made(size, QImage::Format_RGB32);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x)
                made.setPixel(x, y, qRgb(between(0, 255), between(0, 255), between(0, 255)));
        }
        return made;
    }

private:
    std::mt19937 m_engine;
};

// In the order of the file's groups, so that a load creates them in this order too.
const std::pair<ControlType, const controls::PropertyTable &> Families[] = {
    {ControlType::VideoSource, controls::videoSourceProperties()},
    {ControlType::Bitmap, controls::bitmapProperties()},
    {ControlType::TextTag, controls::textTagProperties()},
    {ControlType::DigitalDisplay, controls::digitalDisplayProperties()},
    {ControlType::BarGraph, controls::barGraphProperties()},
    {ControlType::Gauge, controls::gaugeProperties()},
    {ControlType::TrackMap, controls::trackMapProperties()},
    {ControlType::CustomDial, controls::customDialProperties()}};

// What is not any byte, number, colour or text of its kind; by the name of the reader.
const std::map<std::string_view, std::pair<int, int>> Limits{
    {"curCenterX", {0, 700}},     {"curCenterY", {0, 470}},      {"curLeftCoord", {0, 700}},
    {"curTopCoord", {0, 470}},    {"curLeft", {0, 10000}},       {"curTop", {0, 7000}},
    {"curMinAngle", {-720, 720}}, {"curMaxAngle", {-720, 720}},  {"curFontSize", {12, 14}},
    {"curIniWidth", {1, 32767}},  {"curIniHeight", {1, 32767}},  {"curDivisor", {1, 8}},
    {"curDecPlaces", {1, 9}},     {"curPointerLength", {0, 255}}};

bool isAny(std::string_view name, std::initializer_list<const char *> parts)
{
    return std::any_of(parts.begin(), parts.end(),
                       [name](const char *part) { return name.find(part) != std::string_view::npos; });
}

qint32 wholeFor(std::string_view name, Chance &chance)
{
    if (const auto limit = Limits.find(name); limit != Limits.end())
        return chance.between(limit->second.first, limit->second.second);
    if (isAny(name, {"VarID", "Variable"}))
        return chance.variable();
    if (isAny(name, {"Width", "Height"}))
        return chance.between(1, 100);
    return chance.between(0, isAny(name, {"olour", "olor"}) ? 0xFFFFFF : 255);
}

QString textFor(std::string_view name, Chance &chance)
{
    return isAny(name, {"Font"}) ? QStringLiteral("Block") : chance.text(name == "curTText" ? 30 : 29);
}

void fill(controls::OverlayControl &control, const controls::PropertyTable &table, Chance &chance)
{
    const QSize size(chance.between(1, 60), chance.between(1, 60));
    for (const controls::PropertyRow &row : table.rows) {
        if (row.writer.empty())
            continue;
        if (row.kind == PropertyKind::Whole)
            control.write(row.writer, wholeFor(row.reader, chance));
        else if (row.kind == PropertyKind::Single)
            control.write(row.writer, chance.number());
        else if (row.kind == PropertyKind::Text)
            control.write(row.writer, textFor(row.reader, chance));
        else
            control.write(row.writer, chance.picture(size));
    }
}

// By mouse and arrow keys, as far as the canvas lets it. The mouse is on whole pixels of the canvas.
void move(controls::OverlayControl &control, const surface::CanvasRules &rules, Chance &chance)
{
    const auto handle = static_cast<controls::Handle>(chance.between(0, 7));
    const QPointF from(0, 0);
    const QPointF to = rules.screen.toTwips(QPointF(chance.between(-600, 600), chance.between(-600, 600)));
    const bool hasGrip = control.handles()[static_cast<std::size_t>(handle)].isFilled();
    auto gesture = hasGrip ? surface::Gesture::resizing(control, handle, from)
                           : surface::Gesture::dragging(control, from);
    gesture.begins(to, rules.screen);
    gesture.follow(to, rules);
    control.nudge(chance.between(-30, 30), chance.between(-30, 30));
}

void addControls(DesignWindow &d, Chance &chance)
{
    const surface::CanvasRules rules{
        d.world.state.screen, d.world.state.settings.VideoType, {80, false, chance.between(0, 1) == 1}};
    for (const auto &[family, table] : Families) {
        for (int i = chance.between(0, family == ControlType::TrackMap ? 1 : 3); i > 0; --i) {
            d.design().addControl(family, {});
            controls::OverlayControl &control = *d.design().controls().last();
            fill(control, table, chance);
            if (family == ControlType::VideoSource) { // each of its own camera, one of them a background
                control.write("NewCameraNo", i);
                control.write("NewDivisor", i == 1 ? 1 : chance.between(2, 8));
            }
            control.AssignProperties();
            for (int moves = chance.between(0, 3); moves > 0; --moves)
                move(control, rules, chance);
        }
    }
}

// A world whose designs come and go.
struct Room
{
    Room()
    {
        for (const qint32 index : Variables) {
            if (index > 0)
                d.world.addVariable(index, QStringLiteral("Variable %1").arg(index));
        }
        for (int i = 0; i < 48; ++i) {
            const graphics::FontStyle style{(i & 1) != 0, (i & 2) != 0, (i & 4) != 0, (i & 8) != 0};
            test::writeBlockFont(d.world, {"Block", 12 + i / 16, style});
        }
    }
    void empty()
    {
        d.design().mnuNew_Click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QDir(d.world.state.folders.pictureFolder()).removeRecursively();
    }

    DesignWindow d;
};

// Everything but the thumbnail, which shows pictures as they were chosen, and how long the file is without
// it.
QStringList contents(const QByteArray &file)
{
    QStringList lines;
    qsizetype thumbnail = 0;
    for (const LayoutRecord &record : parseLayout(file)) {
        const QByteArray payload = test::payloadOf(record.body);
        if (record.type() == RecordType::Thumbnail)
            thumbnail = payload.size();
        else
            lines.append(QStringLiteral("%1 %2 ").arg(static_cast<int>(record.type())).arg(record.object) +
                         QString::fromLatin1(payload.toHex()));
    }
    lines.append(QString::number(file.size() - thumbnail));
    return lines;
}

// Saved, loaded in a world that has never seen it and saved again: the same file. MORVEL_DESIGNS sets how
// many designs are tried.
TEST(RandomDesigns, areSavedAgainAsTheyWereSavedFirst)
{
    const int designs = qEnvironmentVariable("MORVEL_DESIGNS", "100").toInt();
    Room made, loaded;
    for (int seed = 1; seed <= designs; ++seed) {
        Chance chance(static_cast<unsigned>(seed));
        made.empty();
        loaded.empty();
        made.d.design().setVideoStandard(static_cast<recorder::VideoStandard>(chance.between(0, 1)));
        addControls(made.d, chance);
        if (made.d.design().controls().isEmpty())
            continue;
        const QByteArray file = test::savedDesign(made.d);
        test::loadDesign(loaded.d, file);
        const QStringList first = contents(file), second = contents(test::savedDesign(loaded.d));
        ASSERT_EQ(second.size(), first.size()) << "seed " << seed;
        for (qsizetype i = 0; i < first.size(); ++i)
            ASSERT_EQ(second[i], first[i]) << "seed " << seed;
    }
}

} // namespace
