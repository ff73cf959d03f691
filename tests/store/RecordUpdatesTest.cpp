// SPDX-License-Identifier: MIT
#include "StoreWorld.h"

#include <functional>
#include <thread>

namespace {

const QByteArray before = "20110703\tWiki\tt3\tp3\tw3\tc3\ti3\n";
const QByteArray after = "20110705\tWiki\tt5\tp5\tw5\tc5\ti5\n";
const QByteArray record = "20110704\tWiki\thttp://t/a.jpg\thttp://p/b.jpg\tpage\tcaption\tinfo";

} // namespace

TEST(RecordUpdatesTest, changeOneFieldInPlace)
{
    const QString source = u"Wiki"_s;
    const QString local = u"July 4, 2011"_s;

    const Table<const char *, std::function<void(RecordUpdates &)>, QByteArray> cases{
        {"caption", [&](auto &u) { u.saveNewCaption(u" two  spaces "_s, source, local); },
         "20110704\tWiki\thttp://t/a.jpg\thttp://p/b.jpg\tpage\t two  spaces \tinfo"},
        {"caption with tab", [&](auto &u) { u.saveNewCaption(u"a\tb"_s, source, local); },
         "20110704\tWiki\thttp://t/a.jpg\thttp://p/b.jpg\tpage\ta\tb\tinfo"},
        {"text", [&](auto &u) { u.saveNewTextData(u" a\r\nb    c   d\te "_s, source, local); },
         "20110704\tWiki\thttp://t/a.jpg\thttp://p/b.jpg\tpage\tcaption\t a b  c  d\te "},
        {"deletion", [&](auto &u) { u.storeDeletionForSource(source, local); },
         "20110704\tWiki\tDELETED\thttp://p/b.jpg\tpage\tcaption\tinfo"},
        {"deletion by file",
         [&](auto &u) {
             EXPECT_EQ(u.storeDeletionForFileNameAndReturnThumb(u"b.jpg"_s), u"http://t/a.jpg"_s);
         },
         "20110704\tWiki\tDELETED\thttp://p/b.jpg\tpage\tcaption\tinfo"},
        {"new thumb", [&](auto &u) { u.storeThumbForSource(source, u"7/4/2011"_s, u"new"_s); },
         "20110704\tWiki\tnew\thttp://p/b.jpg\tpage\tcaption\tinfo"},
        {"wrong forms of the date",
         [&](auto &u) {
             u.saveNewCaption(u"x"_s, source, u"7/4/2011"_s);
             u.saveNewTextData(u"x"_s, source, u"20110704"_s);
             u.storeDeletionForSource(source, u"4 July 2011"_s);
             u.storeThumbForSource(source, local, u"x"_s);
             u.deleteDataFor(source, local);
         },
         record},
        {"unknown keys",
         [&](auto &u) {
             u.saveNewCaption(u"x"_s, u"Wik"_s, local);
             u.storeThumbForSource(u"Wik"_s, u"7/4/2011"_s, u"x"_s);
             u.deleteDataFor(u"Wik"_s, u"7/4/2011"_s);
             EXPECT_EQ(u.storeDeletionForFileNameAndReturnThumb(u"none.jpg"_s), QString());
         },
         record},
    };

    for (const auto &[what, update, result] : cases) {
        SCOPED_TRACE(what);
        StoreWorld w;
        w.setData(before + record + '\n' + after);
        update(w.updates);
        EXPECT_EQ(w.data(), before + result + '\n' + after);
        EXPECT_TRUE(w.takeAlerts().isEmpty());
    }
}

TEST(RecordUpdatesTest, leaveShortRecordsAlone)
{
    StoreWorld w;
    w.setData("20110704\tWiki\tthumb\n20110705\tWiki\t\n");
    w.updates.saveNewCaption(u"x"_s, u"Wiki"_s, u"July 4, 2011"_s);
    w.updates.saveNewTextData(u"x"_s, u"Wiki"_s, u"July 5, 2011"_s);
    EXPECT_EQ(w.files.writes, 0);
}

TEST(RecordUpdatesTest, removeTheFirstRecordAndItsCopies)
{
    StoreWorld w;
    const QByteArray other = "20110704\tWiki\tanother\n";
    w.setData(before + record + '\n' + other + record + '\n' + after);
    w.updates.deleteDataFor(u"Wiki"_s, u"7/4/2011"_s);
    EXPECT_EQ(w.data(), before + other + after);
    w.updates.deleteDataFor(u"Wiki"_s, u"7/4/2011"_s);
    EXPECT_EQ(w.data(), before + after);
}

TEST(RecordUpdatesTest, fallBackToTheLegacyCaptions)
{
    const QByteArray line = "20110704\tThe Wiki\ta.jpg\tcaption";
    for (const bool deletion : {true, false}) {
        StoreWorld w;
        w.sourceNames = {{u"Wiki"_s, u"The Wiki"_s}};
        w.setData(before);
        w.setLegacyData("first\r" + line + "\rlast");
        if (deletion)
            w.updates.storeDeletionForSource(u"Wiki"_s, u"July 4, 2011"_s);
        else
            w.updates.deleteDataFor(u"Wiki"_s, u"7/4/2011"_s);
        EXPECT_EQ(w.legacyData(), "first\rlast");
        EXPECT_EQ(w.data(), before);
    }
}

TEST(RecordUpdatesTest, manyDeletionsAtOnceDoWhatOneByOneDoes)
{
    const QByteArray records =
        "1\ta\thttp://x/t/p1.jpg\thttp://x/p1.jpg\tw\tc\ti\n"
        "2\ta\thttp://x/t/p1.jpg\thttp://x/p2\tw\thas/p3.jpg\ti\n"
        "2\ta\thttp://x/same-key.jpg\thttp://x/p4.jpg\tw\tc\ti\n\nshort\t/p5.jpg\n"
        "3\ta\thttp://x/t.jpg\thttp://x/p3.jpg\tw\tc\ti";
    const QStringList names{u"p1.jpg"_s, u"p2.jpg"_s, u"p1.jpg"_s, u"p3.jpg"_s,
                            u""_s,       u"p4.jpg"_s, u"p5.jpg"_s, u"no.jpg"_s};
    StoreWorld one;
    StoreWorld many;
    one.setData(records);
    many.setData(records);
    QStringList thumbs;
    for (const QString &name : names)
        thumbs.append(one.updates.storeDeletionForFileNameAndReturnThumb(name));
    QStringList got;
    const auto run = [](const auto &work, const auto &done) { work(), done(); };
    many.updates.storeDeletionsForFileNames(names, run, [&](const auto &links) { got = links; });
    EXPECT_EQ(got, thumbs);
    EXPECT_EQ(many.data(), one.data());
    EXPECT_EQ(many.files.writes, 1);
    EXPECT_TRUE(thumbs.contains(u"http://x/t/p1.jpg"_s));
}

TEST(RecordUpdatesTest, deletionsInTheBackgroundLoseNoOtherChange)
{
    StoreWorld w;
    w.setData(before + record + '\n' + after);
    std::thread worker;
    QStringList thumbs;
    std::function<void()> finish;
    const auto start = [&](const auto &work, const auto &done) {
        worker = std::thread([work] {
            for (int i = 0; i < 50; ++i)
                work();
        });
        finish = done;
    };
    w.updates.storeDeletionsForFileNames({u"b.jpg"_s}, start, [&](const auto &t) { thumbs = t; });
    for (int i = 0; i < 50; ++i)
        w.records.saveStoredData(u"2012\tSource%1\tt\tp\tw\tc\ti"_s.arg(i));
    worker.join();
    finish();
    EXPECT_EQ(w.data().count('\n'), 53);
    EXPECT_TRUE(w.data().contains("20110704\tWiki\tDELETED\t"));
    w.files.writeError = u"full"_s;
    w.updates.storeDeletionsForFileNames(
        {u"b.jpg"_s}, [](const auto &work, const auto &done) { work(), done(); },
        [&](const auto &t) { thumbs = t; });
    EXPECT_EQ(thumbs, QStringList{u"DELETED"_s});
    EXPECT_EQ(w.takeAlerts(), QStringList{u"Error storing Moravel data.|full"_s});
}
