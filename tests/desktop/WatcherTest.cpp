// SPDX-License-Identifier: MIT
#include "DesktopWorld.h"

#include <QSignalSpy>

#include <malloc.h>

namespace {

const QString A = u"A"_s;

struct Watching : ::testing::Test
{
    void start(const QString &path)
    {
        world.show(path);
        world.desktop->start();
        world.deliver();
    }

    QColor tileCorner() const { return world.tiles.last().pixelColor(0, 0); }

    DesktopWorld world;
    const QString moon = world.picture(u"moon.jpg"_s);
    const QString sun = world.picture(u"sun.jpg"_s);
    ThumbView &cell = world.cells.desktopThumb();
};

TEST_F(Watching, firstLookFillsTheCellFromTheRecord)
{
    world.addRecord(u"20110704|sky|http://s/t.jpg|http://s/moon.jpg|http://s/|A moon|Info"_s);
    EXPECT_TRUE(world.desktop->applicationDockMenu().isEmpty());
    start(moon);
    EXPECT_EQ(world.desktop->currentDesktopPath(), moon);
    EXPECT_EQ(cell.longSourceName(), u"SKY");
    EXPECT_EQ(cell.dateString(), u"July 4, 2011");
    EXPECT_EQ(cell.captionString(), u"A moon");
    EXPECT_EQ(cell.infoString(), u"Info");
    EXPECT_EQ(cell.thumbPath(), u"http://s/t.jpg");
    EXPECT_EQ(cell.picPath(), moon);
    EXPECT_EQ(cell.parentPath(), u"http://s/");
    EXPECT_TRUE(cell.usedAsDesktop());
    EXPECT_TRUE(cell.buttons().deleteBtn);
    EXPECT_FALSE(cell.buttons().refreshButton);
    EXPECT_EQ(cell.imageView().size(), QSize(4, 3));
    EXPECT_EQ(world.tiles.last().size(), QSize(4, 3)) << "the picture with the icon in it";
    EXPECT_EQ(world.desktop->applicationDockMenu().size(), 6);
    EXPECT_EQ(world.nextChange, u"No desktop change scheduled");
}

TEST_F(Watching, foreignPictureIsFollowedWithoutDecodingItAgain)
{
    start(moon);
    const QString foreign = world.home.write(u"else/my_cat.jpg"_s, "IMG");
    world.show(foreign);
    world.run(1);
    EXPECT_EQ(cell.picPath(), foreign);
    EXPECT_EQ(cell.captionField(), u"my cat.jpg");
    EXPECT_EQ(cell.thumbPath(), foreign);
    EXPECT_FALSE(cell.buttons().deleteBtn) << "it is not ours";
    EXPECT_EQ(world.desktop->currentDesktopPath(), moon);

    const auto loads = world.images.loads.size();
    const auto tiles = world.tiles.size();
    QSignalSpy changed(&cell, &ThumbView::changed);
    world.run(600);
    EXPECT_EQ(world.images.loads.size(), loads);
    EXPECT_EQ(world.tiles.size(), tiles);
    EXPECT_EQ(changed.size(), 0);

    world.home.write(u"else/my_cat.jpg"_s, "IMG, another one");
    world.run(1);
    EXPECT_EQ(world.images.loads.size(), loads + 1) << "same name, new content";
    world.addRecord(u"20110704|cats|http://s/t.jpg|http://s/my_cat.jpg||Cat|"_s);
    world.run(1);
    EXPECT_EQ(cell.captionString(), u"Cat");
    EXPECT_EQ(world.images.loads.size(), loads + 1) << "a new text needs no decoding";
}

TEST_F(Watching, unreadablePictureLeavesThePlainIcon)
{
    start(world.home.write(u"else/bad.jpg"_s, "no picture"));
    EXPECT_TRUE(cell.imageView().isNull());
    EXPECT_EQ(tileCorner(), QColor(Qt::yellow));
    const auto loads = world.images.loads.size();
    world.run(60);
    EXPECT_EQ(world.images.loads.size(), loads);
}

TEST_F(Watching, folderOfTheDesktopItself)
{
    start(moon);
    const auto tiles = world.tiles.size();
    world.show(u"/usr/share/pictures/"_s);
    world.run(60);
    EXPECT_EQ(world.desktop->currentDesktopPath(), u"/usr/share/pictures/");
    EXPECT_EQ(cell.imageView(), cell.images().prefs);
    EXPECT_EQ(cell.picPath(), QString());
    EXPECT_EQ(tileCorner(), QColor(Qt::yellow));
    EXPECT_EQ(world.tiles.size(), tiles + 1);
    EXPECT_EQ(world.nextChange, u"Desktop set by System Prefs");
    EXPECT_TRUE(world.desktop->applicationDockMenu().isEmpty());

    world.desktop->setter().setDesktopToFile(sun);
    world.deliver();
    EXPECT_EQ(cell.imageView().size(), QSize(4, 3));
    EXPECT_EQ(cell.captionField(), u"sun.jpg");
}

TEST_F(Watching, allSpacesPutsThePictureBack)
{
    start(moon);
    world.desktop->setter().setDesktopToFile(moon); // notes the screen
    world.preferences.setDesktopOptions(Preferences::AllSpacesTag);
    world.show(sun);
    world.run(1);
    EXPECT_EQ(world.shownOn(), moon);
    EXPECT_EQ(cell.picPath(), moon);
    world.show(sun); // the next workspace, the same picture
    world.run(1);
    EXPECT_EQ(world.shownOn(), moon);

    std::swap(world.pictures.all[0].isMain, world.pictures.all[1].isMain);
    world.show(sun, u"B"_s);
    world.run(1);
    EXPECT_EQ(world.shownOn(u"B"_s), sun) << "that screen was not set";
    EXPECT_EQ(cell.picPath(), sun);
}

TEST_F(Watching, desktopThatIgnoresThePutBackIsNotPressed)
{
    start(moon);
    world.desktop->setter().setDesktopToFile(moon);
    world.preferences.setDesktopOptions(Preferences::AllSpacesTag);
    world.pictures.deaf = true;
    world.show(sun);
    world.run(60);
    EXPECT_GT(world.pictures.sets.size(), 5);
    EXPECT_LT(world.pictures.sets.size(), 15);
}

TEST_F(Watching, waitsWhileTheDesktopTakesAPicture)
{
    start(moon);
    world.preferences.setDesktopOptions(Preferences::AllSpacesTag);
    world.desktop->setter().setDesktopToFile(sun);
    world.images.deliver();
    EXPECT_EQ(world.shownOn(), sun) << "and not yet answered";
    world.loop.advance(5);
    EXPECT_EQ(cell.picPath(), moon);
    world.deliver();
    world.run(1);
    EXPECT_EQ(cell.picPath(), sun);
    EXPECT_EQ(world.pictures.sets.size(), 1);
}

TEST_F(Watching, tenThousandLooksLeaveNothingInMemory)
{
    const QString foreign = world.home.write(u"else/my_cat.jpg"_s, "IMG");
    start(moon);
    for (const QString &shown : {moon, foreign, world.home.path() + u'/'}) {
        SCOPED_TRACE(qPrintable(shown));
        world.show(shown);
        std::size_t before = 0;
        for (int tenth = 0; tenth <= 10; ++tenth) {
            world.run(500); // a thousand ticks
            world.tiles.clear();
            if (tenth == 0) // caches are full
                before = ::mallinfo2().uordblks;
        }
        constexpr std::size_t Slack = 16 * 1024; // bytes: less than two a tick
        EXPECT_LT(::mallinfo2().uordblks, before + Slack);
    }
}

TEST_F(Watching, commandsOfTheCells)
{
    start(moon);
    ThumbView &grid = world.cell(u"sky"_s, u"star.jpg"_s);
    world.desktop->setAsDesktop(grid, 2);
    world.desktop->showInFinder(grid);
    world.deliver();
    EXPECT_EQ(world.shownOn().section(u'/', -1), u"star.jpg");
    grid.setThumbPath(ThumbView::deletedMark());
    world.desktop->setAsDesktop(grid, 1);
    EXPECT_EQ(world.others, QStringList{u"reveal star.jpg"_s});
    world.desktop->setAsDesktop(grid, 2);
    grid.setPicPath(u"http://site/gone.jpg"_s);
    world.desktop->showInFinder(grid);
    world.desktop->showDesktopInfo();
    EXPECT_EQ(world.others,
              (QStringList{u"reveal star.jpg"_s, u"reload"_s, u"activate"_s, u"large 99"_s}));

    world.desktop->showDesktopPrefs();
    EXPECT_TRUE(world.alerts.shown.isEmpty());
    world.scriptError = u"nothing found"_s;
    world.desktop->showDesktopPrefs();
    ASSERT_EQ(world.alerts.shown.size(), 1);
    EXPECT_EQ(world.alerts.shown[0].title, u"Error opening System Preferences");
    EXPECT_EQ(world.alerts.shown[0].text, u"nothing found");
}

} // namespace
