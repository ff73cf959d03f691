// SPDX-License-Identifier: MIT
// Deleting and restoring with the real disk and Trash, the whole service client and a virtual clock.
#include "mainwindow/Deletion.h"

#include "support/DiskTrash.h"
#include "support/Volume.h"

#include "service/World.h"

namespace {

struct Deleting : ::testing::Test
{
    void start(const QStringList &sources = {u"A"_s, u"B"_s})
    {
        world.file = [this](const QString &link) {
            if (link.contains("option=thumb"_L1))
                return thumbAnswer;
            return FakeHttp::Answer{"IMG of " + link.toUtf8()};
        };
        DeletionPorts ports;
        ports.findThumb = [this](const QString &source, const QString &day, const auto &done) {
            world.service->findThumb(source, day, done);
        };
        ports.displayThumbForSource = [this](const QString &source, const Then &then) {
            world.service->displayThumbForSource(source, then);
        };
        ports.loadNextPic = [this] { world.service->loadNextPic(); };
        ports.setDeletingDesktop = [this](bool is) { desktop += is ? u'1' : u'0'; };
        ports.rotateDesktop = [this] { desktop += u'r'; };
        deletion = std::make_unique<Deletion>(DeletionContext{world.cells, world.dates, world.files,
                                                              world.records, world.updates,
                                                              world.links, trash, world.loop},
                                              ports);
        world.addSources(sources);
        world.startPass();
    }

    void run()
    {
        do {
            world.run(5);
        } while (trash.deliver());
    }

    void deletePic(ThumbView &cell, DeleteSender sender = DeleteSender::Cell)
    {
        deletion->deletePic(cell, sender);
        run();
    }

    // Name and contents of every file below the picture folder.
    QStringList pictures() const
    {
        QStringList found;
        for (const QString &folder : {QString(), u"thumbs/"_s}) {
            for (const QString &name : QDir(world.pictureFolder() + folder).entryList(QDir::Files))
                found += folder + name + u' '
                    + QString::fromUtf8(TempHome::read(world.pictureFolder() + folder + name));
        }
        return found;
    }

    QStringList fields(int line) const { return world.lines().value(line).split(u'\t'); }

    World world;
    DiskTrash trash{world.home.path(u"Trash"_s)};
    std::unique_ptr<Deletion> deletion;
    FakeHttp::Answer thumbAnswer{" http://pic/thumb-A-7-4-2011.jpg\n"};
    QString desktop; // 0, 1: deletingDesktop; r: rotated
};

class DeletingOn : public Deleting, public ::testing::WithParamInterface<const char *>
{ };

// Wherever the files can or cannot go, all is back afterwards, and nothing was fetched again.
TEST_P(DeletingOn, AndRestoringLosesNothing)
{
    std::unique_ptr<Volume> volume;
    if (qstrcmp(GetParam(), "volume") == 0) {
        volume = std::make_unique<Volume>(world.home.path(u"Pictures"_s));
        if (!volume->isMounted())
            GTEST_SKIP() << "a second volume needs the right to mount: " << volume->error();
    }
    const bool isBlocked = qstrcmp(GetParam(), "blocked") == 0;
    if (isBlocked)
        world.home.write(u"Trash"_s, "not a folder");
    start();
    const QStringList files = pictures();
    const QStringList records = world.lines();
    ThumbView &cell = world.cell(0);
    const QString caption = cell.captionString();
    const QString info = cell.infoString();
    ASSERT_EQ(files.size(), 4);

    deletePic(cell);
    EXPECT_EQ(pictures().size(), isBlocked ? 4 : 2);
    EXPECT_EQ(cell.thumbPath(), ThumbView::deletedMark());
    EXPECT_EQ(cell.captionField(), u"Deleted.\n\nDouble-click to un-delete."_s);
    EXPECT_FALSE(cell.buttons().deleteBtn);
    EXPECT_EQ(fields(0)[2], ThumbView::deletedMark());
    EXPECT_EQ(fields(0).sliced(3), records[0].split(u'\t').sliced(3));

    world.http.requests.clear();
    deletion->reloadDeletedPic(cell);
    run();
    EXPECT_FALSE(world.loop.isHeld());
    EXPECT_EQ(pictures(), files);
    EXPECT_EQ(world.lines(), records);
    EXPECT_EQ(cell.captionString(), caption);
    EXPECT_EQ(cell.infoString(), info);
    EXPECT_EQ(cell.thumbPath(), u"http://pic/thumb-A-7-4-2011.jpg"_s);
    EXPECT_TRUE(cell.buttons().deleteBtn);
    ASSERT_EQ(world.http.requests.size(), 1);
    EXPECT_EQ(world.http.requests[0].url.toString(),
              u"http://service/potd/defs/moravel.irev?option=thumb&source=A&date=7/4/2011"_s);
    EXPECT_EQ(desktop, u"0"_s);
}

INSTANTIATE_TEST_SUITE_P(Trash, DeletingOn, ::testing::Values("home", "volume", "blocked"));

TEST_F(Deleting, WithoutAnswerThePictureComesBackStill)
{
    for (const FakeHttp::Answer &answer :
         {FakeHttp::Answer{{}, 500}, FakeHttp::Answer{"caf\xc3\xa9"},
          FakeHttp::Answer{"http://x/a\tb"}}) {
        thumbAnswer = answer;
        if (!deletion)
            start();
        const QStringList before = fields(0);
        deletePic(world.cell(0));
        deletion->reloadDeletedPic(world.cell(0));
        run();
        EXPECT_EQ(fields(0)[2], QString());
        EXPECT_EQ(fields(0).sliced(3), before.sliced(3));
        EXPECT_TRUE(QFile::exists(world.pictureFolder() + u"A-7-4-2011.jpg"_s));
    }
}

TEST_F(Deleting, LeavesTheFilesThatAnotherRecordNeeds)
{
    // A and B share a picture, C and D one whose link has no extension.
    world.data = [](const QString &source, const QString &day) {
        const QByteArray own = "pic/" + source.toUtf8() + "-7-4-2011.jpg";
        const QByteArray name = u"AB"_s.contains(source) ? "pic/shared.jpg" : "pic/bare";
        return FakeHttp::Answer{World::goodAnswer(source, day).replace(own, name)};
    };
    start(u"A B C D"_s.split(u' '));
    deletePic(world.cell(0));
    deletePic(world.cell(2));
    QStringList names;
    for (const QString &file : pictures())
        names += file.section(u' ', 0, 0);
    EXPECT_EQ(names.join(u' '),
              u"bare.jpg shared.jpg thumbs/thumb-B-7-4-2011.jpg thumbs/thumb-D-7-4-2011.jpg"_s);
}

TEST_F(Deleting, ChangesTheDesktopThatShowsThePicture)
{
    start();
    ThumbView &shown = world.cells.desktopThumb();
    shown.showSource(u"Long B"_s, u"B"_s);
    shown.showDate(world.cell(1).dateString());
    shown.setThumbPath(world.cell(1).thumbPath());
    shown.setPicPath(world.pictureFolder() + u"B-7-4-2011.jpg"_s);

    deletePic(world.cell(0));
    EXPECT_EQ(desktop, u"0"_s);
    deletePic(shown);
    EXPECT_EQ(desktop, u"001r"_s);
    EXPECT_NE(shown.thumbPath(), ThumbView::deletedMark());
    EXPECT_EQ(world.cell(1).thumbPath(), ThumbView::deletedMark());
    EXPECT_TRUE(pictures().isEmpty());

    deletion->reloadDeletedPic(world.cell(1));
    run();
    deletePic(world.cell(1));
    EXPECT_EQ(desktop, u"001r01r"_s);
    deletePic(shown, DeleteSender::LargePicWindow);
    EXPECT_EQ(desktop, u"001r01r01r"_s);
    EXPECT_EQ(shown.thumbPath(), ThumbView::deletedMark());
    deletePic(world.cells.browserThumb());
    EXPECT_EQ(desktop, u"001r01r01r0"_s) << "no cell of the window";
}

TEST_F(Deleting, WhatHasNoRecordIsNotRestored)
{
    start();
    deletePic(world.cell(0));
    world.updates.deleteDataFor(u"A"_s, u"7/4/2011"_s);
    world.http.requests.clear();
    deletion->reloadDeletedPic(world.cell(0));
    run();
    EXPECT_TRUE(world.http.requests.isEmpty());
    EXPECT_EQ(world.cell(0).thumbPath(), ThumbView::deletedMark());
}

} // namespace
