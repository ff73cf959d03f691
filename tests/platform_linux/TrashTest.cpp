// SPDX-License-Identifier: MIT
#include "support/FakeMainLoop.h"
#include "support/Test.h"
#include "support/Volume.h"

#include "platform/linux/LinuxTrash.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct TrashOfHome : ::testing::Test
{
    FileResult<void> discard(const QString &path, int second = 0) const
    {
        return trash.moveToTrash(path, QDateTime(QDate(2011, 7, 4), QTime(9, 30, second)));
    }

    QStringList inTrash(const QString &folder = u"Trash"_s) const
    {
        const QDir dir(home.path(folder));
        const auto all = QDir::Files | QDir::Hidden | QDir::System;
        return QDir(dir.filePath(u"files"_s)).entryList(all)
            + QDir(dir.filePath(u"info"_s)).entryList(all);
    }

    const TempHome home;
    const PosixTrash trash{home.path(u"Trash"_s)};
};

TEST_F(TrashOfHome, KeepsAFileAndGivesItBack)
{
    for (const QString &name : {u"a.jpg"_s, u"no extension"_s, u"\u00fc [100%] #?.jpg"_s,
                                u"a\nPath=b.jpg"_s, u".hidden"_s, QString(120, u'\u00e9') + u'x'}) {
        SCOPED_TRACE(qPrintable(name));
        const QString path = home.write(u"Pictures/p q/"_s + name, "bytes");
        ASSERT_TRUE(discard(path));
        EXPECT_FALSE(QFile::exists(path));
        EXPECT_EQ(inTrash().size(), 2);
        ASSERT_TRUE(trash.restore(path));
        EXPECT_EQ(TempHome::read(path), "bytes");
        EXPECT_TRUE(inTrash().isEmpty());
        EXPECT_FALSE(trash.restore(home.path(name))) << "nothing is left to restore";
    }
    const QString path = home.write(u"p q/\u00fc%.jpg"_s, "x");
    ASSERT_TRUE(discard(path, 5));
    const QByteArray folder = QDir(home.path()).canonicalPath().toUtf8().toPercentEncoding("/");
    EXPECT_EQ(TempHome::read(home.path(u"Trash/info/\u00fc%.jpg.trashinfo"_s)),
              "[Trash Info]\nPath=" + folder
                  + "/p%20q/%C3%BC%25.jpg\nDeletionDate=2011-07-04T09:30:05\n");
}

TEST_F(TrashOfHome, TellsFilesOfOneNameApart)
{
    const QString picture = u"Pictures/x.jpg"_s;
    const QString path = home.write(picture, "old");
    const QString thumb = home.write(u"Pictures/thumbs/x.jpg"_s, "thumb");
    ASSERT_TRUE(discard(path, 1));
    home.write(picture, "later");
    ASSERT_TRUE(discard(path, 2));
    home.write(picture, "in the same second");
    ASSERT_TRUE(discard(path, 2));
    ASSERT_TRUE(discard(thumb, 3));
    EXPECT_EQ(inTrash().first(4),
              (QStringList{u"x.2.jpg"_s, u"x.3.jpg"_s, u"x.4.jpg"_s, u"x.jpg"_s}));

    for (const char *expected : {"in the same second", "later", "old"}) {
        ASSERT_TRUE(trash.restore(path));
        EXPECT_EQ(TempHome::read(path), expected);
        EXPECT_FALSE(trash.restore(path)) << "overwrites";
        EXPECT_EQ(TempHome::read(path), expected);
        QFile::remove(path);
    }
    EXPECT_FALSE(trash.restore(path)) << "the thumbnail is another file";
    ASSERT_TRUE(trash.restore(thumb));
    EXPECT_EQ(TempHome::read(thumb), "thumb");
    EXPECT_TRUE(inTrash().isEmpty());
}

TEST_F(TrashOfHome, LeavesNoNoteOnAStrangersFile)
{
    const QString stranger = home.write(u"Trash/files/x.jpg"_s, "without a note");
    QDir(home.path()).mkpath(u"Trash/info"_s);
    ASSERT_TRUE(discard(home.write(u"Pictures/x.jpg"_s, "x")));
    EXPECT_EQ(inTrash(), (QStringList{u"x.2.jpg"_s, u"x.jpg"_s, u"x.2.jpg.trashinfo"_s}));
    EXPECT_EQ(TempHome::read(stranger), "without a note");
}

TEST_F(TrashOfHome, GoesByNameWhenThePictureFolderWasMoved)
{
    ASSERT_TRUE(discard(home.write(u"Pictures/Moravel/x.jpg"_s, "x")));
    const QString moved = home.path(u"Bilder/Moravel/x.jpg"_s);
    EXPECT_FALSE(trash.restore(moved)) << "no folder to restore to";
    QDir(home.path()).mkpath(u"Bilder/Moravel/thumbs"_s);
    EXPECT_FALSE(trash.restore(home.path(u"Bilder/Moravel/thumbs/x.jpg"_s)));
    ASSERT_TRUE(trash.restore(moved));
    EXPECT_EQ(TempHome::read(moved), "x");
}

TEST_F(TrashOfHome, PassesOverStrangeEntries)
{
    const QString path = home.write(u"Pictures/x.jpg"_s, "x");
    ASSERT_TRUE(discard(path));
    const QByteArray entry =
        "[Trash Info]\nPath=" + path.toUtf8() + "\nDeletionDate=2030-01-01T00:00:00\n";
    home.write(u"Trash/info/gone.trashinfo"_s, entry);
    home.write(u"Trash/info/folder.trashinfo"_s, entry);
    QDir(home.path()).mkpath(u"Trash/files/folder"_s);
    home.write(u"Trash/info/empty.trashinfo"_s, "");
    home.write(u"Trash/info/large.trashinfo"_s, QByteArray(1 << 20, '\n'));
    home.write(u"Trash/info/date.trashinfo"_s,
               "[Trash Info]\nPath=" + path.toUtf8() + "\nDeletionDate=z\n");
    home.write(u"Trash/files/date"_s, "undated");
    ::mkfifo(home.path(u"Trash/info/pipe.trashinfo"_s).toUtf8().constData(), 0600);
    ASSERT_TRUE(trash.restore(path));
    EXPECT_EQ(TempHome::read(path), "x");

    for (const QString &bad : {QString(), u"x.jpg"_s, home.path(), home.path(u"none"_s)})
        EXPECT_FALSE(discard(bad)) << qPrintable(bad);
}

TEST_F(TrashOfHome, LeavesAFileThatItCannotTake)
{
    const QString path = home.write(u"x.jpg"_s, "x");
    for (const char *blocked : {"Trash", "Trash/files", "Trash/info"}) {
        const QString file = home.write(QString::fromUtf8(blocked), "no folder");
        EXPECT_FALSE(discard(path)) << blocked;
        EXPECT_EQ(TempHome::read(path), "x");
        QFile::remove(file);
        QDir(home.path(u"Trash"_s)).removeRecursively();
    }
}

struct TrashOfVolume : TrashOfHome
{
    void SetUp() override
    {
        if (!volume.isMounted())
            GTEST_SKIP() << "a second volume needs the right to mount: " << volume.error();
        path = home.write(u"volume/p/x.jpg"_s, "x");
    }

    Volume volume{home.path(u"volume"_s)};
    QString own = u"volume/.Trash-%1"_s.arg(::geteuid());
    QString shared = u"volume/.Trash"_s;
    QString path;
};

TEST_F(TrashOfVolume, StaysOnTheVolume)
{
    const QString folder = home.path(shared);
    const auto provide = [&](const char *what) {
        QDir(folder).removeRecursively();
        QFile::remove(folder);
        if (qstrcmp(what, "link") == 0)
            QFile::link(home.path(u"elsewhere"_s), folder);
        else if (qstrcmp(what, "nothing") != 0)
            QDir().mkpath(folder);
        ::chmod(folder.toUtf8().constData(), qstrcmp(what, "sticky") == 0 ? 01777 : 0777);
    };
    QDir(home.path()).mkpath(u"elsewhere"_s);
    for (const char *what : {"nothing", "not sticky", "link", "sticky"}) {
        SCOPED_TRACE(what);
        provide(what);
        const QString used =
            qstrcmp(what, "sticky") == 0 ? shared + u'/' + QString::number(::geteuid()) : own;
        ASSERT_TRUE(discard(path, 7));
        EXPECT_EQ(inTrash(used), (QStringList{u"x.jpg"_s, u"x.jpg.trashinfo"_s}));
        EXPECT_EQ(TempHome::read(home.path(used + u"/info/x.jpg.trashinfo"_s)),
                  "[Trash Info]\nPath=p/x.jpg\nDeletionDate=2011-07-04T09:30:07\n");
        ASSERT_TRUE(trash.restore(path));
        EXPECT_EQ(TempHome::read(path), "x");
        EXPECT_TRUE(inTrash(used).isEmpty());
    }
    EXPECT_FALSE(QFile::exists(home.path(u"Trash"_s)));

    const QString namesake = home.write(u"volume/q/p/x.jpg"_s, "another");
    ASSERT_TRUE(discard(path, 1));
    ASSERT_TRUE(discard(namesake, 2));
    ASSERT_TRUE(trash.restore(path));
    EXPECT_EQ(TempHome::read(path), "x");
}

TEST_F(TrashOfVolume, IsNotLedAstray)
{
    QDir(home.path()).mkpath(u"elsewhere"_s);
    ASSERT_TRUE(QFile::link(home.path(u"elsewhere"_s), home.path(own)));
    EXPECT_FALSE(discard(path));
    EXPECT_EQ(TempHome::read(path), "x");
    EXPECT_TRUE(QDir(home.path(u"elsewhere"_s)).isEmpty());
}

TEST_F(TrashOfVolume, FullOrReadOnlyItLosesNothing)
{
    const QString filler = home.path(u"volume/filler"_s);
    {
        QFile file(filler);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (file.write(QByteArray(4096, 'x')) > 0) { }
    }
    EXPECT_FALSE(discard(path));
    EXPECT_EQ(TempHome::read(path), "x");
    EXPECT_TRUE(inTrash(own).isEmpty());
    QFile::remove(filler);

    ASSERT_TRUE(discard(path));
    const QString other = home.write(u"volume/other.jpg"_s, "other");
    ASSERT_TRUE(volume.setReadOnly(true)) << volume.error();
    EXPECT_FALSE(trash.restore(path));
    EXPECT_FALSE(discard(other));
    EXPECT_EQ(TempHome::read(other), "other");
    ASSERT_TRUE(volume.setReadOnly(false)) << volume.error();
    ASSERT_TRUE(trash.restore(path));
    EXPECT_EQ(TempHome::read(path), "x");
}

TEST_F(TrashOfVolume, WithoutTheRightToMakeOneTheFileStays)
{
    constexpr uid_t nobody = 65534;
    const QByteArray folder = home.path(u"volume/p"_s).toUtf8();
    ASSERT_EQ(::chmod(home.path().toUtf8().constData(), 0755), 0);
    ASSERT_EQ(::chown(folder.constData(), nobody, nobody), 0);
    ASSERT_EQ(::seteuid(nobody), 0);
    const auto moved = discard(path);
    ASSERT_EQ(::seteuid(0), 0);
    EXPECT_FALSE(moved);
    EXPECT_EQ(TempHome::read(path), "x");
}

TEST_F(TrashOfHome, WorksInOrderAndAnswersLater)
{
    FakeMainLoop loop;
    LinuxTrash worker(loop, trash);
    const QString path = home.write(u"x.jpg"_s, "x");
    QList<bool> answers;
    const auto note = [&](const QList<FileResult<void>> &results) {
        for (const auto &result : results)
            answers.append(result.has_value());
    };
    worker.moveToTrash({path, home.path(u"none"_s)}, note);
    worker.restore({path}, note);
    worker.moveToTrash({}, {});
    EXPECT_TRUE(answers.isEmpty());
    MORAVEL_WAIT(answers.size() == 3);
    EXPECT_EQ(answers, (QList<bool>{true, false, true}));
    EXPECT_EQ(TempHome::read(path), "x");
    EXPECT_TRUE(inTrash().isEmpty());
}

} // namespace
