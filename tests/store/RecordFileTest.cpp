// SPDX-License-Identifier: MIT
#include "StoreWorld.h"

namespace {

const QByteArray wiki =
    "20110704\tWiki\thttp://t/small.jpg\thttp://p/pic.jpg\thttp://page/1\tA caption\tInfo";
const QByteArray nasa = "20110704\tNasa\thttp://t/mypic.jpg\thttp://p/view\t\tZwei Bäume\t";
const QByteArray later = "20110705\tWiki\thttp://t/5.jpg\thttp://p/five.jpg\t\tFive\t";

} // namespace

TEST(RecordFileTest, findsRecordsByKey)
{
    StoreWorld w;
    EXPECT_EQ(w.records.readTextData(), QString());
    EXPECT_EQ(w.records.storedDataFor(u"Wiki"_s, u"7/4/2011"_s), QString());

    const QByteArray twin = "20110704\tWiki\ttwin";
    w.setData(nasa + '\n' + wiki + '\n' + twin + '\n' + later + '\n');

    const Table<const char *, const char *, const char *, QByteArray, int> cases{
        {"Wiki", "7/4/2011", "20110704", wiki, 1},
        {"Nasa", "07/04/2011", "20110704", nasa, 0},
        {"Wiki", "7/5/2011", "20110705", later, 3},
        {"Wik", "7/4/2011", "20110704", "", -1},
        {"wiki", "7/4/2011", "20110704", "", -1},
        {"iki", "7/4/2011", "20110704", "", -1},
        {"", "7/4/2011", "20110704", "", -1},
        {"Wiki", "7/6/2011", "20110706", "", -1},
        {"Wiki", "20110704", "7/4/2011", "", -1},
        {"Wiki", "", "", "", -1},
        {"Wiki\thttp:", "7/4/2011", "20110704", "", -1},
        {"Wiki\nNasa", "7/4/2011", "20110704", "", -1},
    };
    for (const auto &[source, shortDate, sqlDate, record, index] : cases) {
        SCOPED_TRACE(std::string(source) + ' ' + shortDate);
        EXPECT_EQ(w.records.storedDataFor(QString::fromUtf8(source), QString::fromUtf8(shortDate))
                      .toUtf8(),
                  record);
        EXPECT_EQ(w.records.indexOfDataFor(QString::fromUtf8(source), QString::fromUtf8(sqlDate)),
                  index);
    }
}

TEST(RecordFileTest, findsRecordsByFile)
{
    StoreWorld w;
    w.sourceNames = {{u"Old"_s, u"Old source"_s}};
    w.setLegacyData("20050101\tOld source\told.jpg\tOld caption");
    w.setData(nasa + '\n' + wiki + '\n' + later + "\n20110101\tend\tt\t/dir/last.jpg\t\t\t");
    const QString folder = w.folders.moravelFolder();
    const QByteArray converted =
        (u"20050101\tOld\t%1old.jpg\t%1old.jpg\t\tOld caption\t"_s).arg(folder).toUtf8();

    // The last column: also where captions were kept before.
    const Table<const char *, QByteArray, bool> cases{
        {"pic.jpg", wiki, false},
        {"small.jpg", wiki, false},
        {"view.jpg", nasa, false},
        {"view.tar.jpg", "", false},
        {"view", nasa, false},
        {"view.", nasa, false},
        {"1", wiki, false},
        {"ic.jpg", "", false},
        {"pic", "", false},
        {"PIC.jpg", "", false},
        {"last.jpg", "20110101\tend\tt\t/dir/last.jpg\t\t\t", false},
        {"pic.jpg\thttp://page/1", wiki, false},
        {"1\tA caption\tInfo\n20110705", "", false},
        {"", "", false},
        {"", "", true},
        {".jpg", "", false},
        {"old.jpg", "", false},
        {"old.jpg", converted, true},
        {"pic.jpg", wiki, true},
        {"none.jpg", "", true},
    };
    for (const auto &[file, record, olds] : cases)
        EXPECT_EQ(w.records.storedDataForFile(QString::fromUtf8(file), olds).toUtf8(), record)
            << file;
    const QStringList lines = w.records.readTextData()->split(u'\n');
    EXPECT_EQ(w.records.captionForFileName(u"view"_s, lines), u"Zwei Bäume"_s);
    EXPECT_EQ(w.records.captionForFileName(u"view.jpg"_s, lines), QString());
    EXPECT_EQ(w.records.captionForFileName(u"a"_s, {u"short/a\tline"_s}), QString());
}

TEST(RecordFileTest, tellsWhetherAnotherRecordUsesAFile)
{
    StoreWorld w;
    w.setData(wiki + '\n' + later + "\n20110706\tWiki\tt\thttp://other/five.jpg\t\t\t\n" + wiki
              + '\n');

    const Table<const char *, const char *, const char *, bool> cases{
        {"pic.jpg", "Wiki", "7/4/2011", false}, // twice, both its own
        {"pic.jpg", "Wik", "7/4/2011", true},   {"pic.jpg", "Wiki", "7/5/2011", true},
        {"five.jpg", "Wiki", "7/5/2011", true}, {"pic.jpg", "Wiki", "no day", true},
        {"pic", "Nasa", "7/4/2011", false},     {"none.jpg", "Wiki", "7/4/2011", false},
        {"", "Wiki", "7/4/2011", false},
    };
    for (const auto &[file, source, day, used] : cases) {
        EXPECT_EQ(w.records.isAnyoneUsingPicFile(QString::fromUtf8(file), QString::fromUtf8(source),
                                                 QString::fromUtf8(day)),
                  used)
            << file << ' ' << source << ' ' << day;
    }
}

TEST(RecordFileTest, replacesInPlaceOrAppends)
{
    const QByteArray fresh = "20110704\tWiki\tnew \xF0\x9F\x8C\x99";

    const Table<QByteArray, QByteArray, QByteArray> cases{
        {"", wiki, wiki + '\n'},
        {nasa + '\n', wiki, nasa + '\n' + wiki + '\n'},
        {nasa, "x\ty", nasa + "x\ty\n"},
        {wiki + '\n' + nasa + '\n', fresh, fresh + '\n' + nasa + '\n'},
        {nasa + '\n' + wiki, fresh, nasa + '\n' + fresh},
        {nasa + '\n' + wiki + '\n' + wiki + "\n\n", fresh,
         nasa + '\n' + fresh + '\n' + wiki + "\n\n"},
        {"20110704\tWiki\n", fresh, "20110704\tWiki\n" + fresh + '\n'},
        {wiki + '\n', "20110704\tWiki", "20110704\tWiki\n"},
        {nasa + '\n', "a\tb\tc\nd\te", nasa + "\na\tb\tc d\te\n"},
        {nasa + '\n', "one field", nasa + '\n'},
        {nasa + '\n', "", nasa + '\n'},
    };
    for (const auto &[before, record, after] : cases) {
        StoreWorld w;
        if (!before.isEmpty())
            w.setData(before);
        w.records.saveStoredData(QString::fromUtf8(record));
        EXPECT_EQ(w.data(), after);
        EXPECT_TRUE(w.takeAlerts().isEmpty());
    }
}

TEST(RecordFileTest, aFileThatCannotBeReadIsNeverWritten)
{
    const auto expectNothing = [](StoreWorld &w, const QString &alert) {
        EXPECT_FALSE(w.records.readTextData());
        EXPECT_EQ(w.records.storedDataFor(u"Wiki"_s, u"7/4/2011"_s), QString());
        EXPECT_EQ(w.records.indexOfDataFor(u"Wiki"_s, u"20110704"_s), -1);
        EXPECT_EQ(w.records.storedDataForFile(u"pic.jpg"_s, false), QString());
        EXPECT_FALSE(w.records.removeDataFor(u"Wiki"_s, u"20110704"_s));
        EXPECT_FALSE(w.records.openingTextData()());
        EXPECT_TRUE(w.records.changing([](std::string_view) { return QByteArray("lost"); })());
        EXPECT_TRUE(w.takeAlerts().isEmpty());
        EXPECT_FALSE(w.records.saveStoredData(QString::fromUtf8(wiki)));
        EXPECT_EQ(w.takeAlerts(), QStringList{alert});
        EXPECT_EQ(w.files.writes, 0);
    };
    StoreWorld w;
    w.setData(wiki + '\n');
    EXPECT_TRUE(w.records.readTextData())
        << "an earlier verdict does not count for what the file has become";
    w.setData(wiki + "\n\xFF\n");
    expectNothing(w, u"Error storing Moravel data.|"_s);
    EXPECT_EQ(w.data(), wiki + "\n\xFF\n");

    StoreWorld folder;
    folder.home->write(u"share/Moravel/Moravel2.txt/x"_s, "a folder in its place");
    expectNothing(folder, u"Error storing Moravel data.|Is a directory"_s);
}

TEST(RecordFileTest, failedWritesAlertAndChangeNothing)
{
    StoreWorld w;
    w.setData(wiki + '\n');
    for (const char *error :
         {"No space left on device", "Permission denied", "Read-only file system"}) {
        w.files.writeError = QString::fromLatin1(error);
        const QStringList alert{u"Error storing Moravel data.|"_s + w.files.writeError};
        EXPECT_FALSE(w.records.saveStoredData(QString::fromUtf8(nasa)));
        EXPECT_EQ(w.takeAlerts(), alert);
        EXPECT_FALSE(w.records.writeTextData(u"all"_s));
        EXPECT_EQ(w.takeAlerts(), alert);
        EXPECT_TRUE(w.records.removeDataFor(u"Wiki"_s, u"20110704"_s));
        EXPECT_EQ(w.takeAlerts(), alert);
        EXPECT_EQ(w.data(), wiki + '\n');
    }
    w.files.writeError.clear();
    EXPECT_TRUE(w.records.writeTextData(u"Bäume\n"_s));
    EXPECT_EQ(w.records.readTextData(), u"Bäume\n"_s);
}
