#include "controls/bitmap/bitmap.h"
#include "platform/file_replace.h"
#include "support/design_window.h"

#include <QDir>
#include <QListWidget>
#include <QTreeWidget>

namespace {

using controls::OverlayControl;
using test::DesignWindow;

struct Library : testing::Test
{
    Library() { w.design().GenerateIcons(silent); }

    // Chooses the family in the tree; its custom entries as they stand there.
    QStringList entries(int family)
    {
        QTreeWidgetItem &root = *tree.topLevelItem(family);
        tree.setCurrentItem(&root);
        QStringList names;
        for (int i = 0; i < root.childCount(); ++i)
            names.append(root.child(i)->text(0));
        return names;
    }
    bool hasPicture(int row) { return !list.item(row)->icon().availableSizes().isEmpty(); }
    void define(OverlayControl &control, const QString &name, const QString &refusal = {})
    {
        test::click(w, control.outerRect().center(), {}, Qt::RightButton);
        w.world.prompts.expectInput(name);
        if (!refusal.isEmpty())
            w.world.prompts.expectMessage(refusal);
        test::choose("mnuDefineCustom_C");
    }
    OverlayControl &dropped(const QByteArray &key, QPoint at)
    {
        EXPECT_TRUE(test::drop(w.canvas(), at, surface::LibraryMime, key));
        return *w.design().controls().back();
    }
    void press(Qt::Key key)
    {
        tree.setFocus();
        QTest::keyClick(&tree, key);
    }
    QStringList files(const QString &folder) { return QDir(folder).entryList(QDir::Files, QDir::Name); }

    DesignWindow w;
    platform::NoProgress silent;
    QTreeWidget &tree = test::child<QTreeWidget>(w.window, "trvControl");
    QListWidget &list = test::child<QListWidget>(w.window, "lvControl");
    const platform::Folders folders = w.world.state.folders;
};

TEST_F(Library, AnEntryIsDefinedRenamedPlacedAndDeleted)
{
    constexpr int Gauges = 5;
    OverlayControl &gauge = w.addGauge(100, 100);
    gauge.write("newMax", 300);
    define(gauge, "");
    define(gauge, " Fast Lap ");
    define(gauge, "FAST LAP", "Configuration name already exists");
    EXPECT_EQ(entries(Gauges), QStringList{"fast lap"});
    EXPECT_EQ(list.count(), 2);
    EXPECT_TRUE(hasPicture(0) && hasPicture(1));
    EXPECT_TRUE(QFile::exists(folders.cache + "05365235900.bmp"));

    tree.setCurrentItem(tree.topLevelItem(Gauges)->child(0));
    EXPECT_EQ(list.count(), 1);
    for (const char *name : {"fast lap", "Faster Lap"}) { // unchanged it is no clash
        w.world.prompts.expectInput(name);
        press(Qt::Key_F2);
    }
    EXPECT_EQ(entries(Gauges), QStringList{"Faster Lap"});
    const OverlayControl &placed = dropped("aFaster Lap", {719, 300});
    EXPECT_EQ(placed.box(), (controls::Box{8700, 4500, 2100, 2100}));
    EXPECT_EQ(test::whole(placed, "curCenterX"), 650);
    EXPECT_EQ(std::get<float>(placed.read("curMax")), 300);

    define(w.addDisplay(10, 10), "Lap Time"); // whose configuration holds its place
    EXPECT_EQ(test::placeOf(dropped("blap time", {400, 300})), QPoint(400, 300));
    entries(Gauges);

    test::click(*list.viewport(), list.visualItemRect(list.item(1)).center());
    QContextMenuEvent rightPress(QContextMenuEvent::Mouse, list.visualItemRect(list.item(1)).center(), {});
    QApplication::sendEvent(list.viewport(), &rightPress);
    w.world.prompts.expectQuestion("Are you sure you wish to delete ?", true);
    test::choose("mnuDeleteControl");
    EXPECT_EQ(entries(Gauges), QStringList());
    press(Qt::Key_Delete); // on a family
    EXPECT_FALSE(QFile::exists(folders.cache + "05365235900.bmp"));
}

TEST_F(Library, WhatIsRefusedLeavesTheEntriesAsTheyAre)
{
    constexpr int Gauges = 5;
    OverlayControl &gauge = w.addGauge(100, 100);
    define(gauge, "fast");
    define(gauge, "slow");
    entries(Gauges);
    tree.setCurrentItem(tree.topLevelItem(Gauges)->child(0));
    w.world.prompts.expectInput("slow");
    w.world.prompts.expectMessage("Control name already exists");
    press(Qt::Key_F2);
    w.world.prompts.expectQuestion("Are you sure you wish to delete ?", false);
    press(Qt::Key_Delete);
    EXPECT_EQ(entries(Gauges), (QStringList{"fast", "slow"}));

    const QStringList thumbnails = files(folders.cache);
    QFile::remove(folders.ControlConfigFile());
    QDir().mkpath(folders.ControlConfigFile()); // where no file can be written
    define(gauge, "third",
           "The command could not be completed.\n" + folders.ControlConfigFile() + ": not a regular file");
    EXPECT_EQ(entries(Gauges), (QStringList{"fast", "slow"}));
    EXPECT_EQ(files(folders.cache), thumbnails);
}

TEST_F(Library, AnEntryAndWhatIsMadeOfItHaveTheirOwnPictures)
{
    constexpr int Bitmaps = 1;
    w.design().addControl(controls::ControlType::Bitmap, {1500, 1500});
    auto &bitmap = static_cast<controls::Bitmap &>(*w.design().controls().back());
    bitmap.showSample();
    bitmap.AssignProperties();
    bitmap.write("newFileName", QString("hill.bmp"));      // gone
    bitmap.write("newAlfaFileName", QString("plain.png")); // another picture
    QDir().mkpath(folders.pictureFolder());
    QImage(8, 8, QImage::Format_RGB32).save(folders.pictureFolder() + "plain.png");
    define(bitmap, "hills");
    define(bitmap, "more hills");
    const OverlayControl &placed = dropped("chills", {300, 300});
    EXPECT_EQ(files(folders.pictureFolder()),
              (QStringList{"A2359004.bmp", "S2359003.bmp", "hill 2.bmp", "hill 3.bmp", "plain 2.png",
                           "plain 3.png", "plain.png"}));
    bitmap.write("newAlfaFileName", QString("plain 2.png")); // shared with the entry
    entries(Bitmaps);
    tree.setCurrentItem(tree.topLevelItem(Bitmaps)->child(0));
    w.world.prompts.expectQuestion("Are you sure you wish to delete ?", true);
    press(Qt::Key_Delete);
    EXPECT_EQ(entries(Bitmaps), QStringList{"more hills"});
    EXPECT_EQ(files(folders.pictureFolder()), (QStringList{"A2359004.bmp", "S2359003.bmp", "hill 3.bmp",
                                                           "plain 2.png", "plain 3.png", "plain.png"}));
    for (const char *picture : {"curSourceImg", "curAlfaImg"})
        EXPECT_EQ(std::get<QImage>(placed.read(picture)).size(), QSize(104, 104));
    QFile::remove(folders.pictureFolder() + "hill 3.bmp");
    EXPECT_EQ(std::get<QString>(dropped("cmore hills", {300, 300}).read("curFileName")), ""); // of no file
}

TEST_F(Library, ADamagedFileGivesControlsThatCanBeShownAndSaved)
{
    QByteArray text;
    for (const controls::Family &family : controls::families()) {
        const QByteArray name = family.name;
        text += "[" + name + "]\nCNT=999999999\n1=xzeros\n2=xabsurd\n3=xshort\n[" + name +
                "_FILE]\n1=../gone.bmp\n";
        text += "[" + name + "/2]\n";
        for (int i = 0; i < 60; ++i)
            text += QByteArray::number(i) + "=" + (i % 2 ? "-1e30" : "99999999") + "\n";
        text += "[" + name + "/3]\n0=1950\n1=1950\n2=\n3=x\n";
    }
    platform::replaceFile(folders.ControlConfigFile(), text);
    w.design().load();
    w.design().GenerateIcons(silent);
    for (int i = 0; i < tree.topLevelItemCount(); ++i) {
        const char letter = controls::families()[static_cast<std::size_t>(i)].letter;
        EXPECT_EQ(entries(i), (QStringList{"xzeros", "xabsurd", "xshort"}));
        for (const QString &entry : entries(i))
            dropped(QString(QLatin1Char(letter) + entry).toLatin1(), {50 * i, 30 * i});
        EXPECT_TRUE(hasPicture(1) && hasPicture(2) && hasPicture(3)) << letter;
    }
    EXPECT_EQ(w.design().controls().size(), 24);
    EXPECT_FALSE(w.canvas().grab().isNull());
    w.world.prompts.expectMessage({});
    w.window.files().saveWorkspace();
}

} // namespace
