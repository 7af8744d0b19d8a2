#include "layoutfile/saved_design.h"

namespace {

using namespace layoutfile;
using controls::ControlType;
using recorder::VideoStandard;
using test::DesignWindow;

struct PlainValues : controls::ControlValues
{
    qint32 curDivisor = 1;
};

// Stands for a control of any family as far as the checks before a save look at it.
struct PlainControl final : controls::ControlOf<PlainValues>
{
    using ControlOf::ControlOf;

    void updatePosition() override {}
    void AssignProperties() override {}
    void applyInitialProperties() override {}
    QSizeF startSize() const override { return {}; }
    void paintPreview(QPainter &) const override {}
    double complexity() const override { return 0; }
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

// A surface with plain controls of any families on it.
struct PlainSurface final : controls::ControlSurface
{
    PlainSurface(surface::frmInterface &host, const std::vector<ControlType> &families)
        : preview(host.renderPreview())
    {
        for (const ControlType family : families)
            made.push_back(std::make_unique<PlainControl>(*controls::familyOf(family), host, nullptr));
    }
    QList<controls::OverlayControl *> controls() const override
    {
        QList<controls::OverlayControl *> list;
        for (const auto &control : made)
            list.append(control.get());
        return list;
    }
    controls::OverlayControl *loadControl(ControlType) override { return nullptr; }
    void showControl(controls::OverlayControl &) override {}
    QImage renderPreview() const override { return preview; }
    void setVideoStandard(VideoStandard) override {}
    void refresh() override {}

    QImage preview;
    std::vector<std::unique_ptr<PlainControl>> made;
};

constexpr auto Map = ControlType::TrackMap, Video = ControlType::VideoSource;

TEST(Save, checksSpeakInTheirOrderAndOnlyForTheCommand)
{
    const char *maps = "System does not support more than one Track Map";
    const char *backgrounds = "You can't use multiple Video Sources as background video\n"
                              "Please select one Video Source as a background video";
    const char *nothing = "System can't detect any object(s) to save";
    const char *silence = nullptr, *anyMessage = "";
    const std::vector<ControlType> none, one{Map, Video}, full{Video, Map, Video},
        most{Video, Map, Video, Map};
    const struct
    {
        std::vector<ControlType> families;
        SaveKind kind;
        const char *message;
        SaveResult result;
        bool hasPicture = true;
    } cases[] = {
        {most, SaveKind::Command, maps, SaveResult::Refused},
        {full, SaveKind::Command, backgrounds, SaveResult::Refused},
        {none, SaveKind::Command, nothing, SaveResult::Refused},
        {none, SaveKind::Workspace, silence, SaveResult::NothingToDo},
        {none, SaveKind::Backup, silence, SaveResult::NothingToDo},
        {most, SaveKind::Workspace, silence, SaveResult::Written},
        {most, SaveKind::Backup, silence, SaveResult::Written},
        {one, SaveKind::Command, silence, SaveResult::Written},
        {one, SaveKind::Command, anyMessage, SaveResult::Written, false}, // the encoder's words
        {one, SaveKind::Workspace, anyMessage, SaveResult::Written, false},
        {one, SaveKind::Backup, silence, SaveResult::Written, false},
    };
    DesignWindow d;
    const QString path = test::pathIn(d, "saved.VGL");
    for (const auto &c : cases) {
        PlainSurface surface(d.design(), c.families);
        if (!c.hasPicture)
            surface.preview = QImage();
        platform::replaceFile(path, "old");
        if (c.message)
            d.world.prompts.expectMessage(*c.message ? QString(c.message) : QString());
        EXPECT_EQ(test::save(d, path, surface, c.kind), c.result);
        EXPECT_EQ(platform::readFile(path) != "old", c.result == SaveResult::Written);
    }
    EXPECT_EQ(test::save(d, {}, d.design()), SaveResult::NothingToDo);
}

// Pixels 120 to 360 and 240 to 360, filled up to 240, with a blue frame that must not be seen.
TEST(Save, theThumbnailIsASixthOfTheOverlay)
{
    for (const auto &[standard, height, ground] : {std::tuple{VideoStandard::Pal, 96, test::PalGround},
                                                   std::tuple{VideoStandard::Ntsc, 80, test::NtscGround}}) {
        DesignWindow d;
        d.design().setVideoStandard(standard);
        controls::BarGraph &bar = d.addBar(0, 0);
        bar.setBox({120 * 15 - 75, 240 * 15 - 75, 240 * 15 + 150, 120 * 15 + 150});
        bar.updatePosition();
        bar.write("newDefaultVal", 50);
        bar.SetControlGroup(1);
        platform::replaceFile(test::pathIn(d, "a.VGL"), test::savedDesign(d));
        const QImage shown(ExtractThumbnail(test::pathIn(d, "a.VGL"), d.world.state.folders));
        ASSERT_EQ(shown.size(), QSize(120, height));
        EXPECT_GT(shown.pixelColor(25, 50).red(), 200);
        for (const QPoint &place : {QPoint(50, 50), QPoint(10, 50), QPoint(30, 35), QPoint(30, 65)}) {
            const QColor seen = shown.pixelColor(place);
            EXPECT_LT(seen.red() + std::abs(seen.green() - ground.green()) +
                          std::abs(seen.blue() - ground.blue()),
                      60);
        }
    }
}

} // namespace
