#include "layoutfile/saved_design.h"

#include <set>

namespace {

using namespace layoutfile;
using controls::ControlType;
using controls::OverlayControl;
using recorder::VideoStandard;
using test::DesignWindow;

struct PlainValues : controls::ControlValues
{
    qint32 curDivisor = 0;
};

// Stands for a control of any family as far as the checks before a save look at it.
class PlainControl final : public controls::ControlOf<PlainValues>
{
public:
    using ControlOf::ControlOf;

    void updatePosition() override {}
    void AssignProperties() override {}
    void applyInitialProperties() override {}
    QSizeF startSize() const override { return {}; }
    void paintPreview(QPainter &) const override {}
    double complexity() const override { return 0; }

protected:
    const controls::PropertyTable &properties() const override
    {
        static constexpr std::array Rows{
            controls::property<&PlainValues::curDivisor>("curDivisor", "newDivisor")};
        static constexpr controls::PropertyTable Table{Rows, {}};
        return Table;
    }
    void paintInner(QPainter &, const QSize &) const override {}
    void nudge(int, int) override {}
};

// A surface with any controls on it.
class PlainSurface final : public controls::ControlSurface
{
public:
    explicit PlainSurface(surface::frmInterface &host) : preview(host.renderPreview()), m_host(host) {}

    QImage preview;

    void add(ControlType type)
    {
        const controls::Family &family = *controls::familyOf(type);
        m_controls.emplace_back(family.create ? family.create(family, m_host, nullptr)
                                              : new PlainControl(family, m_host, nullptr));
        if (type == ControlType::VideoSource)
            m_controls.back()->write("newDivisor", 1);
    }

    QList<OverlayControl *> controls() const override
    {
        QList<OverlayControl *> list;
        for (const auto &control : m_controls)
            list.append(control.get());
        return list;
    }
    OverlayControl *loadControl(ControlType) override { return nullptr; }
    void showControl(OverlayControl &) override {}
    QImage renderPreview() const override { return preview; }
    void setVideoStandard(VideoStandard) override {}
    void refresh() override {}

private:
    surface::frmInterface &m_host;
    std::vector<std::unique_ptr<OverlayControl>> m_controls;
};

TEST(Save, checksSpeakInTheirOrderAndOnlyForTheCommand)
{
    const QString maps = "System does not support more than one Track Map";
    const QString backgrounds = "You can't use multiple Video Sources as background video\n"
                                "Please select one Video Source as a background video";
    const QString nothing = "System can't detect any object(s) to save";
    constexpr auto Map = ControlType::TrackMap, Video = ControlType::VideoSource;
    const struct
    {
        std::vector<ControlType> controls;
        SaveKind kind;
        QString message;
        SaveResult result;
    } cases[] = {
        {{Video, Map, Video, Map}, SaveKind::Command, maps, SaveResult::Refused},
        {{Video, Map, Video}, SaveKind::Command, backgrounds, SaveResult::Refused},
        {{}, SaveKind::Command, nothing, SaveResult::Refused},
        {{}, SaveKind::Workspace, {}, SaveResult::NothingToDo},
        {{}, SaveKind::Backup, {}, SaveResult::NothingToDo},
        {{Map, Map}, SaveKind::Workspace, {}, SaveResult::Written},
        {{Map, Map}, SaveKind::Backup, {}, SaveResult::Written},
        {{Map, Video}, SaveKind::Command, {}, SaveResult::Written},
    };
    DesignWindow d;
    const QString path = test::pathIn(d, "saved.VGL");
    for (const auto &test : cases) {
        PlainSurface surface(d.design());
        for (const ControlType type : test.controls)
            surface.add(type);
        platform::replaceFile(path, "old");
        if (!test.message.isEmpty())
            d.world.prompts.expectMessage(test.message);
        EXPECT_EQ(test::save(d, path, surface, test.kind), test.result) << test.message.toStdString();
        EXPECT_EQ(platform::readFile(path) != "old", test.result == SaveResult::Written)
            << test.message.toStdString();
        EXPECT_EQ(test::save(d, {}, surface, test.kind), SaveResult::NothingToDo);
    }
}

TEST(Save, goesOnWithoutAThumbnailThatCannotBeMade)
{
    DesignWindow d;
    PlainSurface surface(d.design());
    surface.add(ControlType::BarGraph);
    surface.preview = QImage();
    for (const SaveKind kind : {SaveKind::Command, SaveKind::Workspace, SaveKind::Backup}) {
        if (kind != SaveKind::Backup)
            d.world.prompts.expectMessage({}); // the encoder's words
        EXPECT_EQ(test::save(d, test::pathIn(d, "saved.VGL"), surface, kind), SaveResult::Written);
    }
}

TEST(Save, marksTheVariablesThatTheRecorderNeeds)
{
    DesignWindow d;
    for (const int index : {15, 16, 17, 22, 30, 31, 41, 6001, 6002, 6003})
        d.world.addVariable(index, QString::number(index));
    const auto equation = [&](std::size_t index, const QString &text) {
        d.world.state.catalogue.live[index].UseCustomTrans = true;
        d.world.state.catalogue.live[index].CustomTransformation = text;
    };
    equation(6001, "var_0017"); // named by a later one only: not looked into
    equation(6002, "var_0015+Var_6001*VAR_6003");
    equation(6003, "u+VAR_0016");
    equation(22, "var_0031"); // no user variable
    d.world.state.catalogue.live[2].SmoothingTime = 0.5F;
    d.world.state.catalogue.live[41].Enabled = false;
    d.world.state.settings.ChapterList = {{0, 0, 0, 6002, 0, 1}};
    d.world.state.settings.autoStart = {17, 0, 0, 0}; // not active
    d.world.state.settings.autoStop = {22, 1, 0, 0};
    d.addBar(10, 10).bindVariable(3);
    controls::Gauge &gauge = d.addGauge(200, 200);
    gauge.bindVariable(2);
    gauge.write("newColourVariable", 30);

    std::vector<int> stored;
    std::set<int> used;
    for (const LayoutRecord &record : parseLayout(test::savedDesign(d))) {
        const auto *entry = std::get_if<VariableEntry>(&record.body);
        if (!entry)
            continue;
        stored.push_back(entry->variable);
        EXPECT_EQ(record.object, static_cast<int>(stored.size()));
        if (entry->used == 1)
            used.insert(entry->variable);
        if (entry->variable < 22) { // raw values: no programs
            EXPECT_EQ(entry->programOffset, -1);
            EXPECT_EQ(entry->programLength, entry->used);
        }
        EXPECT_EQ(entry->smoothingTime, entry->variable == 2 ? 0.5F : 0.0F);
    }
    EXPECT_EQ(stored, (std::vector<int>{2, 3, 10, 15, 16, 17, 22, 30, 31, 6001, 6002, 6003}));
    EXPECT_EQ(used, (std::set<int>{2, 3, 10, 15, 16, 22, 6001, 6002, 6003}));
}

TEST(Save, theThumbnailShowsTheOverlayWithoutItsFrames)
{
    const auto isNear = [](const QColor &a, const QColor &b) {
        return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue()) <
               60;
    };
    const std::tuple<VideoStandard, QSize, QColor> standards[] = {
        {VideoStandard::Pal, {120, 96}, test::PalGround}, {VideoStandard::Ntsc, {120, 80}, test::NtscGround}};
    for (const auto &[standard, size, ground] : standards) {
        DesignWindow d;
        d.design().setVideoStandard(standard);
        // Pixels 120 to 360 and 240 to 360, filled up to 240.
        controls::BarGraph &bar = d.addBar(0, 0);
        bar.setBox({120 * 15 - 75, 240 * 15 - 75, 240 * 15 + 150, 120 * 15 + 150});
        bar.updatePosition();
        bar.write("newDefaultVal", 50);
        bar.SetControlGroup(1); // a blue frame
        platform::replaceFile(test::pathIn(d, "a.VGL"), test::savedDesign(d));
        const QImage shown(ExtractThumbnail(test::pathIn(d, "a.VGL"), d.world.state.folders));
        ASSERT_EQ(shown.size(), size);
        EXPECT_TRUE(isNear(shown.pixelColor(25, 50), Qt::red));
        for (const QPoint &place : {QPoint(50, 50), QPoint(10, 50), QPoint(30, 35), QPoint(30, 65)})
            EXPECT_TRUE(isNear(shown.pixelColor(place), ground)) << place.x() << ", " << place.y();
    }
}

} // namespace
