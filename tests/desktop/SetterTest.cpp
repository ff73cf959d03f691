// SPDX-License-Identifier: MIT
#include "DesktopWorld.h"

#include "desktop/DesktopSizing.h"

namespace {

const QString A = u"A"_s;
const QString B = u"B"_s;

struct Setter : ::testing::Test
{
    Setter()
    {
        world.show(old);
        world.show(old, B);
        world.desktop->start();
        world.deliver();
    }

    void set(const QString &path)
    {
        setter.setDesktopToFile(path);
        world.deliver();
    }

    DesktopWorld world;
    const QString old = world.picture(u"old ü.jpg"_s);
    const QString moon = world.picture(u"moon.jpg"_s);
    const QString sun = world.picture(u"sun.jpg"_s);
    DesktopSetter &setter = world.desktop->setter();
    ThumbView &cell = world.cells.desktopThumb();
};

TEST_F(Setter, setsTheMainScreenAndRemembersThePrevious)
{
    EXPECT_EQ(world.desktop->currentDesktopPath(), old);
    set(moon);
    const FakeDesktopPictures::Set expected{desktopUrlFromPath(moon), A, DesktopScaling::Centred};
    EXPECT_EQ(world.pictures.sets, QList{expected});
    EXPECT_EQ(setter.previousDesktopPath(), desktopUrlFromPath(old));
    EXPECT_TRUE(setter.previousDesktopPath().contains(u"%20"_s)) << "stays a URL";
    EXPECT_EQ(world.desktop->currentDesktopPath(), moon);
    EXPECT_EQ(cell.picPath(), moon);
    EXPECT_TRUE(cell.buttons().prevDesktopBtn);

    world.pictures.shown[A].clear();
    set(sun);
    EXPECT_EQ(setter.previousDesktopPath(), QString());
    EXPECT_FALSE(cell.buttons().prevDesktopBtn);
}

TEST_F(Setter, stopsWithNothingButTheScreenNoted)
{
    world.downloading = sun;
    std::swap(world.pictures.all[0].isMain, world.pictures.all[1].isMain);
    for (const QString &path : {old, sun, QString()}) {
        SCOPED_TRACE(qPrintable(path));
        setter.setDeletingDesktop(true);
        set(path);
        EXPECT_TRUE(setter.deletingDesktop());
        EXPECT_EQ(setter.moravelScreen(), B);
        EXPECT_TRUE(world.pictures.sets.isEmpty());
        EXPECT_EQ(setter.previousDesktopPath(), QString());
        EXPECT_EQ(world.desktop->currentDesktopPath(), old);
    }
}

TEST_F(Setter, deletionKeepsThePreviousAndIsOverEvenIfTheDesktopRefuses)
{
    set(moon);
    const QString previous = setter.previousDesktopPath();
    setter.setDeletingDesktop(true);
    world.pictures.refusing = {A};
    expectWarning(u"refused"_s);
    set(sun);
    EXPECT_FALSE(setter.deletingDesktop());
    EXPECT_EQ(setter.previousDesktopPath(), previous);
    EXPECT_EQ(world.desktop->currentDesktopPath(), moon);
    EXPECT_EQ(cell.picPath(), moon);
}

TEST_F(Setter, goesThroughAllScreensThoughOneFails)
{
    world.preferences.setDesktopOptions(Preferences::AllScreensTag);
    world.pictures.refusing = {A};
    expectWarning(u"moon.jpg not set on screen A: refused"_s);
    set(moon);
    EXPECT_EQ(world.shownOn(B), moon);
    EXPECT_EQ(world.desktop->currentDesktopPath(), old);

    world.pictures.refusing.clear();
    set(sun);
    EXPECT_EQ(world.shownOn(A), sun);
    EXPECT_EQ(world.shownOn(B), sun);
    EXPECT_EQ(world.desktop->currentDesktopPath(), sun);

    world.pictures.can.perScreen = false;
    world.pictures.sets.clear();
    set(moon);
    EXPECT_EQ(world.pictures.sets.size(), 1) << "one picture serves all screens";
}

TEST_F(Setter, whatIsNoPictureFileIsRefused)
{
    expectWarning(u"no picture file"_s);
    for (const QString &path : {u"/nowhere.jpg"_s, world.pictureFolder()}) {
        SCOPED_TRACE(qPrintable(path));
        set(path);
        EXPECT_TRUE(world.pictures.sets.isEmpty());
        EXPECT_EQ(world.desktop->currentDesktopPath(), old);
        EXPECT_EQ(setter.previousDesktopPath(), desktopUrlFromPath(old));
    }
}

TEST_F(Setter, laterCallsWaitForTheDesktop)
{
    setter.setDesktopToFile(moon);
    EXPECT_TRUE(setter.isBusy());
    setter.setDesktopToFile(sun);
    setter.setDesktopToFile(old);
    EXPECT_EQ(world.desktop->currentDesktopPath(), old);
    world.deliver();
    EXPECT_EQ(world.shownOn(), old);
    EXPECT_EQ(world.pictures.sets.size(), 2) << "the last one asked for wins";
    EXPECT_EQ(setter.previousDesktopPath(), desktopUrlFromPath(moon));
}

TEST_F(Setter, silentDesktopIsGivenUpButALateAnswerCounts)
{
    setter.setDesktopToFile(moon);
    world.images.deliver();
    expectWarning(u"no answer from the desktop"_s);
    world.loop.advance(10);
    EXPECT_FALSE(setter.isBusy());
    world.deliver();
    EXPECT_EQ(world.desktop->currentDesktopPath(), moon);

    setter.setDesktopToFile(sun); // answers that come after the end find nobody
    world.images.deliver();
    world.desktop.reset();
    world.deliver();
    EXPECT_FALSE(world.pictures.onScreensChanged);
}

TEST_F(Setter, sizingUsesTheMainScreenForAll)
{
    world.preferences.setDesktopOptions(Preferences::AllScreensTag);
    world.pixelSize = {1000, 700}; // smaller than A, larger than B
    set(moon);
    ASSERT_EQ(world.pictures.sets.size(), 2);
    EXPECT_EQ(world.pictures.sets[1].scaling, DesktopScaling::Centred);

    world.pictures.sets.clear();
    world.desktop->setSizing(sizing::FillScreen);
    world.deliver();
    EXPECT_TRUE(world.pictures.sets.isEmpty()) << "shows from the next change on";
    set(sun);
    EXPECT_EQ(world.pictures.sets[0].scaling, DesktopScaling::Fill);

    world.show(old);
    expectWarning(u"no picture file: "_s + world.pictureFolder() + u"old%20"_s);
    world.desktop->setSizing(sizing::Center); // the escaped path names no file
    EXPECT_EQ(setter.previousDesktopPath(), desktopUrlFromPath(old));
    EXPECT_EQ(world.preferences.desktopSizeSetting(), sizing::Center);
}

TEST_F(Setter, newAndRestartedScreensGetThePictureAgain)
{
    const auto change = [this] {
        world.pictures.sets.clear();
        world.pictures.onScreensChanged();
        world.pictures.onScreensChanged();
        world.run(1.5);
        QStringList screens;
        for (const auto &one : world.pictures.sets)
            screens.append(one.screen);
        return screens;
    };
    EXPECT_EQ(change(), QStringList()) << "what the user had set is his";
    set(moon);
    EXPECT_EQ(change(), QStringList{A});
    world.preferences.setDesktopOptions(Preferences::AllScreensTag);
    EXPECT_EQ(change(), (QStringList{A, B}));
    EXPECT_EQ(world.shownOn(B), moon);
    world.show(sun);
    EXPECT_EQ(change(), QStringList()) << "somebody chose another one";
}

TEST_F(Setter, hugePictureIsAskedFor)
{
    constexpr qint64 TenMb = 10 * 1024 * 1024;
    const QString big = world.picture(u"big.jpg"_s, TenMb + 1);
    const QString ten = world.picture(u"ten.jpg"_s, TenMb);
    world.preferences.setChangeFrequency(5);
    world.loop.advance(60);
    const QDateTime due = world.loop.now().addSecs(300);

    world.desktop->setDesktop(big);
    ASSERT_EQ(world.questions.size(), 1);
    EXPECT_EQ(world.questions[0].title, u"File too big");
    EXPECT_EQ(world.questions[0].buttons[0], u"Don't Show");
    for (const int refusal : {0, -1}) {
        world.answer(refusal);
        world.deliver();
        EXPECT_EQ(world.shownOn(), old);
    }
    EXPECT_NE(world.desktop->rotation().nextDesktopRotate(), due);
    world.answer(1);
    world.deliver();
    EXPECT_EQ(world.shownOn(), big);
    EXPECT_EQ(world.desktop->rotation().nextDesktopRotate(), due);
    world.desktop->setDesktop(ten);
    world.deliver();
    EXPECT_EQ(world.shownOn(), ten);
    EXPECT_EQ(world.questions.size(), 1);
}

} // namespace
