// SPDX-License-Identifier: MIT
#include "StoreWorld.h"

TEST(FoldersTest, makesWhatIsAskedForAgainAndAgain)
{
    StoreWorld w;
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(w.folders.moravelDataFile(), w.dataPath());
        EXPECT_TRUE(w.files.isFolder(w.home->path(u"share/Moravel"_s)));
        EXPECT_TRUE(w.files.isFolder(w.home->path(u"Pictures/Moravel"_s)));
        EXPECT_EQ(w.folders.thumbsFolder(), w.home->path(u"Pictures/Moravel/thumbs/"_s));
        EXPECT_EQ(w.folders.moravelNewsFile(), w.home->path(u"share/Moravel/Moravel-News.txt"_s));
        EXPECT_EQ(w.folders.sourcesFile(), w.home->path(u"share/Moravel/Moravel-Sources.txt"_s));
        EXPECT_FALSE(w.files.exists(w.dataPath()));
        QDir(w.home->path(u"share"_s)).removeRecursively();
        QDir(w.home->path(u"Pictures"_s)).removeRecursively();
    }
    EXPECT_TRUE(w.takeAlerts().isEmpty());
}

TEST(FoldersTest, alertsWhereAFolderCannotBeMade)
{
    // The obstacle is a plain file where a folder belongs.
    using Operation = QString (Folders::*)();
    const Table<Operation, const char *, const char *> cases{
        {&Folders::moravelFolder, "Pictures/Moravel", "Error creating Moravel folder.|File exists"},
        {&Folders::moravelFolder, "Pictures", "Error creating Moravel folder.|Not a directory"},
        {&Folders::thumbsFolder, "Pictures/Moravel/thumbs",
         "Error creating Moravel thumbs folder.|File exists"},
        {&Folders::moravelDataFile, "share/Moravel",
         "Error creating Moravel support folder.|File exists"},
        {&Folders::moravelNewsFile, "share/Moravel", ""},
        {&Folders::sourcesFile, "share", ""},
    };
    for (const auto &[operation, obstacle, alerts] : cases) {
        SCOPED_TRACE(obstacle);
        StoreWorld w;
        const QString file = w.home->write(QLatin1String(obstacle), "kept");
        EXPECT_EQ((w.folders.*operation)(), QString());
        EXPECT_EQ(w.takeAlerts().join(u'\n'), QLatin1String(alerts));
        EXPECT_EQ(TempHome::read(file), "kept");
    }
}

TEST(FoldersTest, withoutFoldersTheWorkingDirectoryStaysUntouched)
{
    StoreWorld w;
    const QString before = QDir::currentPath();
    const TempHome here;
    QDir::setCurrent(here.path());
    const QString record = u"20110704\tWiki\thttp://t/a.jpg\thttp://p/a.jpg\t\tcaption\t"_s;
    here.write(u"Moravel2.txt"_s, record.toUtf8());
    here.write(u"Moravel-captions.txt"_s, "20110704\tWiki\ta.jpg\tcaption");
    w.sourceNames = {{u"Wiki"_s, u"Wiki"_s}};
    w.files.folders = {};

    EXPECT_EQ(w.records.storedDataFor(u"Wiki"_s, u"7/4/2011"_s), QString());
    EXPECT_EQ(w.records.storedDataForFile(u"a.jpg"_s, true), QString());
    EXPECT_EQ(w.records.readTextData(), QString());
    EXPECT_EQ(w.legacy.readOldTextData(), QString());
    w.takeAlerts();
    EXPECT_FALSE(w.records.saveStoredData(record));
    EXPECT_EQ(w.takeAlerts(),
              (QStringList{u"Error creating Moravel support folder.|No such file or directory"_s,
                           u"Error storing Moravel data.|No such file or directory"_s}));
    w.updates.deleteDataFor(u"Wiki"_s, u"7/4/2011"_s);
    EXPECT_EQ(TempHome::read(here.path(u"Moravel2.txt"_s)), record.toUtf8());
    EXPECT_EQ(TempHome::read(here.path(u"Moravel-captions.txt"_s)),
              "20110704\tWiki\ta.jpg\tcaption");
    EXPECT_EQ(QDir(here.path()).count(), 4U);
    QDir::setCurrent(before);
}

TEST(FoldersTest, movesAnOldDataFileOnce)
{
    StoreWorld w;
    const QString old = w.home->write(u"Pictures/Moravel/Moravel2.txt"_s, "old");
    w.files.moveError = u"busy"_s;
    EXPECT_EQ(w.folders.moravelDataFile(), old);
    EXPECT_EQ(w.takeAlerts(),
              QStringList{u"Error moving Moravel data file to support folder.|busy"_s});
    w.files.moveError.clear();

    EXPECT_EQ(w.folders.moravelDataFile(), w.dataPath());
    EXPECT_EQ(w.data(), "old");
    EXPECT_FALSE(w.files.exists(old));

    w.home->write(u"Pictures/Moravel/Moravel2.txt"_s, "older");
    EXPECT_EQ(w.folders.moravelDataFile(), w.dataPath());
    EXPECT_EQ(w.data(), "old");
    EXPECT_EQ(TempHome::read(old), "older");
    EXPECT_TRUE(w.takeAlerts().isEmpty());
}

TEST(FoldersTest, removesLeftovers)
{
    StoreWorld w;
    w.folders.removeLeftovers();
    for (const char *name : {"share/Moravel/", "Pictures/Moravel/", "Pictures/Moravel/thumbs/"}) {
        const QString part = w.home->write(QLatin1String(name) + u".x.abcdef.part"_s, "x");
        w.folders.removeLeftovers();
        EXPECT_FALSE(w.files.exists(part)) << name;
    }
}
