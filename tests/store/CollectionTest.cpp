// SPDX-License-Identifier: MIT
#include "store/Collection.h"

#include "StoreWorld.h"

#include "store/Folders.h"
#include "store/NameList.h"

namespace {

QStringList names(const std::vector<SparePicture> &pictures)
{
    QStringList list;
    for (const SparePicture &picture : pictures)
        list.append(picture.name);
    return list;
}

CollectionFacts facts()
{
    CollectionFacts facts;
    facts.records = "20110703\tA\thttp://x/t1.jpg\thttp://x/a1.jpg\t\tc\ti\n"
                    "20110701\tA\thttp://x/t2.jpg\thttp://x/a2.jpg\t\tc\ti\n"
                    "20110702\tB\t\thttp://x/view\t\tc\ti\n"
                    "20110702\tC\thttp://x/t1.jpg\thttp://x/a1.jpg\t\tc\ti\n" // the same file
                    "20110705\tB\tDELETED\thttp://x/kept.jpg\t\tc\ti\n"
                    "20110705\tB\thttp://x/\thttp://x/ownthumb.jpg\t\tc\ti\n"
                    "20110706\tB\thttp://x/t.jpg\t/home/mine.jpg\t\tc\ti\n"
                    "20110706\tB\thttp://x/t.jpg\thttp://x/missing.jpg\t\tc\ti\n"
                    "broken\n";
    facts.legacy = u"20080101\tLong A\told.jpg\tc\r"_s;
    for (const char *name :
         {"a2.jpg", "a1.jpg", "view.jpg", "kept.jpg", "ownthumb.jpg", "mine.jpg", "old.jpg"})
        facts.pictures.push_back({QString::fromLatin1(name), 100, 50});
    facts.pictures.push_back({u"holiday.jpg"_s, 7, 1});
    facts.pictures[0].modified = 90; // of the older day, but fetched later
    facts.thumbs = {{u"t1.jpg"_s, 3, 0}, {u"t2.jpg"_s, 4, 0}};
    facts.sourceNames = {{u"A"_s, u"Long A"_s}};
    return facts;
}

TEST(Collection, countsEachFileOnceForItsSource)
{
    const Collection all = collectionOf(facts());
    ASSERT_EQ(all.sources.size(), 2U);
    EXPECT_EQ(all.sources[0].source, u"B"_s);
    EXPECT_EQ(all.sources[0].files, 4);
    EXPECT_EQ(all.sources[1].source, u"Long A"_s);
    EXPECT_EQ(all.sources[1].bytes, 300);
    EXPECT_EQ(all.pictures.bytes, 700);
    EXPECT_EQ(all.thumbs.bytes, 7);
    EXPECT_EQ(all.others.files, 1);
    EXPECT_EQ(all.others.bytes, 7);
    EXPECT_TRUE(collectionOf({}).sources.empty());
}

TEST(Collection, letsTheOldestGoThatCanComeBack)
{
    const QString a1 = u"a1.jpg"_s, a2 = u"a2.jpg"_s;
    const QString view = u"view.jpg"_s;

    const Table<QStringList, qint64, QStringList> cases{
        {QStringList(), 0, {}},
        {QStringList(), 700, {}},
        {QStringList(), 699, {view}},
        {QStringList(), 500, {view, a1}},
        {QStringList(), 1, {view, a1, a2}}, // the rest is not to be had again
        {{view}, 600, {a1}},
        {{view, a1, a2}, 1, {}},
    };

    for (const auto &[staying, limit, going] : cases) {
        CollectionFacts known = facts();
        known.staying = {staying.begin(), staying.end()};
        EXPECT_EQ(names(picturesToLetGo(collectionOf(known), limit)), going) << limit;
    }
}

TEST(NameList, isKept)
{
    StoreWorld world;
    const auto path = [&world] { return world.folders.letGoFile(); };
    const QStringList both{u"b ü.jpg"_s, u"a.jpg"_s};
    {
        NameList list(world.files, path);
        EXPECT_TRUE(list.names().isEmpty());
        list.insert(both + QStringList{QString(), u"two\nlines"_s});
    }
    NameList list(world.files, path);
    EXPECT_EQ(list.names(), QSet<QString>(both.begin(), both.end()));
    list.remove({both[0]});
    EXPECT_TRUE(NameList(world.files, path).contains(both[1]));
    EXPECT_FALSE(NameList(world.files, path).contains(both[0]));
}

} // namespace
