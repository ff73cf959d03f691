// SPDX-License-Identifier: MIT
#include "DesktopWorld.h"

namespace {

struct Rotating : ::testing::Test
{
    void rotate(RotateSender sender = RotateSender::Button)
    {
        rotation.rotateDesktop(sender);
        world.deliver();
    }

    qint64 secondsLeft() const
    {
        return world.loop.now().secsTo(rotation.nextDesktopRotate().value_or(QDateTime()));
    }

    QString shownName() const { return world.shownOn().section(u'/', -1); }

    DesktopWorld world;
    Rotation &rotation = world.desktop->rotation();
};

TEST_F(Rotating, takesTheFirstUsableCell)
{
    const auto cell = [this](const char *name) -> ThumbView & {
        const QString text = QString::fromLatin1(name);
        return world.cell(text, text + u".jpg"_s);
    };
    cell("hidden").setHidden(true);
    cell("used").setUsedAsDesktop(true);
    cell("nopic").setPicPath({});
    cell("deleted").setThumbPath(ThumbView::deletedMark());
    cell("missing").setPicPath(u"http://site/not_there.jpg"_s);
    ThumbView &good = cell("good");
    ThumbView &next = cell("next");
    QFile(world.pictureFolder() + u"good.jpg"_s).resize(11 * 1024 * 1024);
    rotate();
    EXPECT_EQ(shownName(), u"good.jpg") << "of any size";
    EXPECT_TRUE(good.usedAsDesktop());
    EXPECT_TRUE(world.questions.isEmpty());
    rotate();
    EXPECT_EQ(shownName(), u"next.jpg");
    EXPECT_TRUE(next.usedAsDesktop());
    world.run(5);
    EXPECT_EQ(world.nextThumbs, 0) << "a button leaves the pass alone";
}

TEST_F(Rotating, shufflesTheCells)
{
    for (const char *name : {"a", "b", "c"})
        world.cell(QString::fromLatin1(name), QString::fromLatin1(name) + u".jpg"_s);
    world.random.numbers = {2, 0, 0};
    rotate(RotateSender::TimerOrMenu);
    EXPECT_EQ(shownName(), u"c.jpg");
    world.loop.advance(0.9);
    EXPECT_EQ(world.nextThumbs, 0);
    world.loop.advance(0.2);
    EXPECT_EQ(world.nextThumbs, 1);
}

TEST_F(Rotating, fallsBackToTheFolder)
{
    const Table<const char *, QStringList, std::uint32_t, const char *> cases{
        {"no file", {}, 3, ""},
        {"never the last", {u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s}, 0xFFFFFFFF, "b.jpg"},
        {"one file and no thumbs folder", {u"a.jpg"_s}, 0, ""},
        {"wraps before the last", {u"a.jpg"_s, u"b.jpg"_s}, 3, "a.jpg"},
        {"no picture", {u"a.txt"_s, u"b.jpg"_s}, 0, ""},
        {"too big", {u"BIG.jpg"_s, u"b.jpg"_s}, 0, ""},
        {"only picture is last", {u"a.txt"_s, u"z.jpg"_s}, 1, ""},
        {"thumbs counts", {u"z.jpg"_s, u"thumbs/t.jpg"_s}, 1, ""},
        {"before thumbs", {u"a.jpg"_s, u"thumbs/t.jpg"_s}, 1, "a.jpg"},
    };
    for (const auto &[what, files, number, shown] : cases) {
        SCOPED_TRACE(what);
        DesktopWorld fresh;
        for (const QString &name : files)
            fresh.picture(name, name.startsWith(u'B') ? 10 * 1024 * 1024 + 1 : 4);
        fresh.random.numbers = {number};
        fresh.desktop->rotation().rotateDesktop(RotateSender::TimerOrMenu);
        fresh.run(3);
        EXPECT_EQ(fresh.shownOn().section(u'/', -1), QLatin1String(shown));
        EXPECT_EQ(fresh.nextThumbs, 0);
    }
}

TEST_F(Rotating, everyChangeStartsAFullInterval)
{
    world.cell(u"a"_s, u"a.jpg"_s);
    world.cell(u"b"_s, u"b.jpg"_s);
    world.preferences.setChangeFrequency(15);
    EXPECT_EQ(secondsLeft(), 900);
    EXPECT_EQ(world.nextChange, u"New desktop in 15 minutes");
    EXPECT_TRUE(world.keepButton);
    world.run(600);
    EXPECT_EQ(world.nextChange, u"New desktop in 5 minutes");
    rotate();
    EXPECT_EQ(secondsLeft(), 900);
    world.run(899);
    EXPECT_EQ(world.nextThumbs, 0);
    world.run(3);
    EXPECT_EQ(world.nextThumbs, 1);
    EXPECT_NEAR(static_cast<double>(secondsLeft()), 900, 3);

    world.preferences.setChangeFrequency(0);
    EXPECT_FALSE(rotation.nextDesktopRotate());
    EXPECT_EQ(world.nextChange, u"No desktop change scheduled");
    EXPECT_FALSE(world.keepButton);
    const auto sets = world.pictures.sets.size();
    world.run(3600);
    EXPECT_EQ(world.pictures.sets.size(), sets);
}

TEST_F(Rotating, firstChangeComesHalfAMinuteAfterTheGrid)
{
    world.cell(u"a"_s, u"a.jpg"_s);
    rotation.markFirstRotationDue();
    EXPECT_FALSE(rotation.nextDesktopRotate()) << "no rotation wanted";
    world.preferences.setRotateFrequency(30);
    rotation.markFirstRotationDue();
    rotation.scheduleRotateDesktop(30);
    rotation.showRotateInfo();
    EXPECT_EQ(world.nextChange, u"New desktop in about 1 minute");
    world.run(29);
    EXPECT_EQ(shownName(), QString());
    world.run(2);
    EXPECT_EQ(shownName(), u"a.jpg");
    EXPECT_NEAR(static_cast<double>(secondsLeft()), 1800, 2);

    rotation.scheduleRotateDesktop(30);
    rotation.setupNextDesktopRotate();
    const auto sets = world.pictures.sets.size();
    world.run(60);
    EXPECT_EQ(world.pictures.sets.size(), sets) << "a change of the schedule cancels it";
}

TEST_F(Rotating, aChangeThatHasToWaitIsMadeOnce)
{
    world.picture(u"a.jpg"_s);
    world.picture(u"b.jpg"_s);
    QString why = u"New desktop waits, since the screen is locked"_s;
    world.ports.whyNotNow = [&why] { return why; };
    world.preferences.setChangeFrequency(30);
    EXPECT_EQ(world.nextChange, u"New desktop in 30 minutes");
    world.run(1801);
    EXPECT_EQ(world.nextChange, why);
    world.run(7200);
    rotation.catchUp(); // not yet
    EXPECT_TRUE(world.pictures.sets.isEmpty());
    why.clear();
    rotation.catchUp();
    rotation.catchUp();
    world.run(1);
    EXPECT_EQ(world.pictures.sets.size(), 1);
    EXPECT_NEAR(static_cast<double>(secondsLeft()), 1800, 2);
    why = u"locked"_s;
    world.run(1801);
    rotate(RotateSender::TimerOrMenu); // the user wants one
    EXPECT_EQ(world.nextChange, u"New desktop in 30 minutes");
}

TEST_F(Rotating, holdLastsAnHour)
{
    for (const int minutes : {30, 0}) {
        SCOPED_TRACE(minutes);
        world.preferences.setChangeFrequency(minutes);
        rotation.holdDesktopForOneHour();
        EXPECT_EQ(secondsLeft(), 3600);
        EXPECT_EQ(world.preferences.rotateFrequency(), minutes);
        EXPECT_EQ(world.nextChange, u"New desktop in 60 minutes");
        EXPECT_FALSE(world.keepButton);
        world.run(3601);
        if (minutes > 0)
            EXPECT_NEAR(static_cast<double>(secondsLeft()), minutes * 60, 2);
        else
            EXPECT_FALSE(rotation.nextDesktopRotate());
    }
}

TEST_F(Rotating, previousDesktopToggles)
{
    const QString a = world.picture(u"a b.jpg"_s);
    const QString b = world.picture(u"b.jpg"_s);
    rotation.previousDesktop();
    world.deliver();
    EXPECT_TRUE(world.pictures.sets.isEmpty()) << "there is none yet";
    world.show(a);
    world.desktop->setter().setDesktopToFile(b);
    world.deliver();
    for (const QString &path : {a, b, a}) {
        world.desktop->run(DockCommand::PreviousDesktop);
        world.deliver();
        EXPECT_EQ(world.shownOn(), path);
    }
}

} // namespace
