#include "layoutfile/saved_design.h"

#include <QDir>
#include <QProcess>
#include <QScopeGuard>

namespace {

using layoutfile::SaveKind;
using recorder::VideoStandard;
using test::DesignWindow;

// A design that cannot be seen.
struct BlindSurface final : controls::ControlSurface
{
    explicit BlindSurface(surface::frmInterface &shown) : design(shown) {}

    QList<controls::OverlayControl *> controls() const override { return design.controls(); }
    controls::OverlayControl &loadControl(controls::ControlType family) override
    {
        return design.loadControl(family);
    }
    void showControl(controls::OverlayControl &) override {}
    QImage renderPreview() const override { return {}; }
    void setVideoStandard(VideoStandard) override {}
    void refresh() override {}

    surface::frmInterface &design;
};

TEST(Save, refusesAnEmptyDesignAndGoesOnWithoutAThumbnail)
{
    DesignWindow d;
    BlindSurface surface(d.design());
    for (const auto &[kind, tells] :
         {std::pair{SaveKind::Command, true}, std::pair{SaveKind::Workspace, true},
          std::pair{SaveKind::Backup, false}, std::pair{SaveKind::Recovery, false}}) {
        const auto [none, refusal, fonts] = test::save(d, surface, kind);
        EXPECT_TRUE(none.isEmpty() && fonts.isEmpty());
        EXPECT_EQ(refusal, kind == SaveKind::Command ? "System can't detect any object(s) to save" : "");

        controls::OverlayControl &bar = d.addBar(0, 0);
        if (tells)
            d.world.prompts.expectMessage({}); // the encoder's words
        EXPECT_FALSE(test::save(d, surface, kind).file.isEmpty());
        bar.mnuDelete_Click();
    }
}

TEST(Save, onlyTheUsersSaveEndsAtAControlThatCannotBeStored)
{
    DesignWindow d;
    d.addBar(0, 0).setBox({1e20F, 0, 1950, 450});
    d.addGauge(100, 100);
    EXPECT_THROW(test::save(d, d.design()), common::RunTimeError);
    for (const SaveKind kind : {SaveKind::Workspace, SaveKind::Backup, SaveKind::Recovery}) {
        int controls = 0;
        for (const auto &record : layoutfile::parseLayout(test::save(d, d.design(), kind).file))
            controls += record.type() == layoutfile::RecordType::Gauge ? 1 : 0;
        EXPECT_EQ(controls, 1);
    }
}

TEST(Save, leavesAPivotThatWasNeverSetAndATakenOneIsStored)
{
    DesignWindow d;
    controls::Gauge &gauge = d.addGauge(100, 100);
    gauge.write("newCenterX", 0);
    EXPECT_FALSE(test::savedDesign(d).isEmpty());
    EXPECT_EQ(gauge.get().curCenterX, 0);
    QStringList texts = gauge.Serialise();
    texts[3] = "0";
    gauge.Deserialise(texts);
    EXPECT_EQ(gauge.get().curCenterX, 70); // half of 2 x 65 + 10 pixels
}

struct Bar final : platform::Progress
{
    void begin(const QString &) override {}
    void setValue(int percent) override { values.push_back(percent); }
    void end() override {}

    std::vector<int> values;
};

TEST(Save, advancesTheBarByStretchesAndTwiceForABarGraph)
{
    DesignWindow d;
    d.addGauge(100, 100);
    d.addBar(300, 100);
    Bar shown;
    test::save(d, d.design(), SaveKind::Recovery, shown);
    // a gauge and a bar graph gathered, a bar graph and a gauge written, three variables, the settings
    EXPECT_EQ(shown.values, std::vector({8, 25, 41, 50, 53, 56, 60, 65, 70, 75, 80, 85, 90, 100}));
}

TEST(Save, theThumbnailIsASixthOfTheOverlay)
{
    const std::pair<VideoStandard, int> heights[] = {{VideoStandard::Pal, 96}, {VideoStandard::Ntsc, 80}};
    for (const auto &[standard, height] : heights) {
        DesignWindow d;
        d.design().setVideoStandard(standard);
        // Pixels 120 to 360 and 240 to 360, filled up to 240.
        controls::BarGraph &bar = d.addBar(0, 0);
        bar.setBox({120 * 15 - 75, 240 * 15 - 75, 240 * 15 + 150, 120 * 15 + 150});
        bar.updatePosition();
        bar.write("newDefaultVal", 50);
        platform::replaceFile(test::pathIn(d, "a.VGL"), test::savedDesign(d));
        const QImage shown(layoutfile::ExtractThumbnail(test::pathIn(d, "a.VGL"), d.world.state.folders));
        ASSERT_EQ(shown.size(), QSize(120, height));
        EXPECT_GT(shown.pixelColor(25, 50).red(), 200);
        for (const QPoint &place : {QPoint(50, 50), QPoint(10, 50), QPoint(30, 35), QPoint(30, 65)})
            EXPECT_LT(shown.pixelColor(place).red(), 60);
    }
}

void saveTo(DesignWindow &d, const QString &path, bool inRoot, bool fails)
{
    d.world.prompts.expectSaveFile(path);
    if (!inRoot)
        d.world.prompts.expectQuestion({}, true);
    if (fails)
        d.world.prompts.expectMessage({});
    d.run("mnuSaveConfig");
    if (fails) {
        EXPECT_TRUE(d.world.prompts.shown().back().text.startsWith("The command could not be completed."));
    }
    EXPECT_TRUE(d.window.isEnabled());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(d.design().caption(), fails ? "Untitled" : "DEFAULT");
    EXPECT_TRUE(QDir(d.world.state.folders.temporary).isEmpty());
}

TEST(FailingDevice, aSaveIntoNoFolderIsReportedAndLeavesEverythingAsItWas)
{
    DesignWindow d;
    d.addGauge(100, 100);
    platform::replaceFile(test::pathIn(d, "file"), "content");
    saveTo(d, test::pathIn(d, "file/DEFAULT.VGL"), false, true);
    EXPECT_EQ(platform::readFile(test::pathIn(d, "file")), "content");
    saveTo(d, test::pathIn(d, "DEFAULT.VGL"), false, false);
}

TEST(FailingDevice, aFullCardKeepsTheOldLayoutOrHoldsTheNewOneInItsPlace)
{
    for (const auto &[oldSize, fits] : {std::pair{100, false}, std::pair{40000, true}}) {
        DesignWindow d;
        const QString card = test::pathIn(d, "card"), path = card + "/DEFAULT.VGL";
        QDir().mkpath(card);
        if (QProcess::execute("mount", {"-t", "tmpfs", "-o", "size=65536", "tmpfs", card}) != 0)
            GTEST_SKIP() << "no small volume can be mounted here";
        const auto unmounting = qScopeGuard([&card] { QProcess::execute("umount", {card}); });
        const QByteArray old(oldSize, 'o');
        platform::replaceFile(path, old);
        QFile video(card + "/video.bin");
        ASSERT_TRUE(video.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (video.write(QByteArray(1024, 'v')) == 1024) {
        }
        d.addGauge(100, 100);
        saveTo(d, path, true, !fits);
        const QByteArray kept = platform::readFile(path);
        EXPECT_EQ(layoutfile::IsValidVGL(kept), fits);
        EXPECT_EQ(kept == old, !fits);
        EXPECT_EQ(QDir(card).entryList(QDir::Files), QStringList({"DEFAULT.VGL", "video.bin"}));
    }
}

} // namespace
