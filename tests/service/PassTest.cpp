// SPDX-License-Identifier: MIT
// The road of a day's pictures: passes, queue, records, thumbnails and downloads together.
#include "World.h"

namespace {

const QStringList Three{u"A"_s, u"B"_s, u"C"_s};
const QString Hint = u"Double-click any thumbnail to set as desktop."_s;

QString body(const QString &source, const QString &day)
{
    return u"option=all&source=%1&date=%2"_s.arg(source, QString(day).replace(u'/', "%2F"_L1));
}

struct Pass : ::testing::Test
{
    Pass() { w.addSources(Three); }

    World w;
};

TEST_F(Pass, fillsEveryCellAndKeepsEverything)
{
    w.startPass();
    for (int i = 0; i < 3; ++i) {
        const ThumbView &cell = w.cell(i);
        EXPECT_EQ(cell.dateString(), u"July 4, 2011"_s);
        EXPECT_EQ(cell.captionField(), u"Caption %1-7-4-2011"_s.arg(Three[i]));
        EXPECT_EQ(cell.imageView().size(), QSize(4, 3));
        EXPECT_FALSE(cell.isSpinning());
        const QString name = Three[i] + u"-7-4-2011.jpg"_s;
        EXPECT_EQ(TempHome::read(w.pictureFolder() + name), "IMG picture bytes");
        EXPECT_EQ(TempHome::read(w.pictureFolder() + "thumbs/thumb-"_L1 + name),
                  "IMG picture bytes");
    }
    EXPECT_EQ(w.lines().size(), 3);
    EXPECT_EQ(w.lines()[0],
              u"20110704\tA\thttp://pic/thumb-A-7-4-2011.jpg\thttp://pic/A-7-4-2011.jpg\t"
              "http://page/A-7-4-2011\tCaption A-7-4-2011\tInfo A-7-4-2011"_s);
    EXPECT_EQ(w.http.posts(),
              (QStringList{body(Three[0], u"7/4/2011"_s), body(Three[1], u"7/4/2011"_s),
                           body(Three[2], u"7/4/2011"_s)}));
    EXPECT_EQ(w.newPictures.size(), 3);
    EXPECT_EQ(w.newsChecks, 1);
    EXPECT_TRUE(w.alerts.shown.isEmpty());
    EXPECT_TRUE(w.statuses.contains(u"Looking for new pic from Long B..."_s));
    EXPECT_EQ(w.statuses.last(), Hint);
    EXPECT_TRUE(
        QDir(w.pictureFolder()).entryList({u"*.part"_s}, QDir::Files | QDir::Hidden).isEmpty());
}

TEST(PassAlone, oneRequestAtATimeHalfASecondApart)
{
    World w;
    QStringList names;
    for (int i = 10; i < 20; ++i)
        names.append(u"S%1"_s.arg(i));
    w.addSources(names);
    QList<double> times;
    const QDateTime start = w.loop.now();
    w.data = [&](const QString &source, const QString &day) {
        times.append(static_cast<double>(start.msecsTo(w.loop.now())) / 1000);
        return FakeHttp::Answer{World::goodAnswer(source, day)};
    };
    w.startPass();
    ASSERT_EQ(times.size(), 10);
    for (int i = 1; i < 10; ++i)
        EXPECT_NEAR(times[i] - times[i - 1], 0.5, 0.051) << i;
    EXPECT_EQ(w.lines().size(), 10);
}

TEST_F(Pass, storedDaysNeedNoRequest)
{
    w.startPass();
    const auto requests = w.http.requests.size();
    // Back a day and forth again: only the other day is asked for.
    w.picker.setDateValue(w.loop.now().addDays(-1));
    w.picker.userChangeDate = true;
    w.service->thumbPass().forgetLastDataCheck();
    w.startPass();
    EXPECT_EQ(w.http.posts().mid(3),
              (QStringList{body(Three[0], u"7/3/2011"_s), body(Three[1], u"7/3/2011"_s),
                           body(Three[2], u"7/3/2011"_s)}));
    const auto before = w.http.requests.size();
    EXPECT_EQ(before, requests * 2);
    w.picker.setDateValue(w.picker.maximumDate());
    w.service->thumbPass().forgetLastDataCheck();
    w.startPass();
    EXPECT_EQ(w.http.requests.size(), before);
    EXPECT_EQ(w.cell(2).captionField(), u"Caption C-7-4-2011"_s);
}

TEST(PassAlone, rateLimitAndHourlyRepeat)
{
    World w;
    w.addSources({Three[0]});
    w.startPass(10);
    w.service->thumbPass().loadNextThumb();
    w.run(5);
    EXPECT_EQ(w.newsChecks, 1);
    w.run(3600);
    EXPECT_EQ(w.newsChecks, 2);
    w.run(3600);
    EXPECT_EQ(w.newsChecks, 3);
    EXPECT_EQ(w.http.posts().size(), 1);
}

TEST_F(Pass, waitsWhereNobodyAskedAndMakesUpOnce)
{
    QString why = u"since the connection is metered"_s;
    w.ports.whyNotNow = [&why] { return why; };
    const auto downloads = [this] { return QDir(w.pictureFolder()).entryList(QDir::Files).size(); };
    w.startPass(); // the user has asked for the day, not for its large pictures
    EXPECT_EQ(w.http.posts().size(), 3);
    EXPECT_EQ(downloads(), 0);
    EXPECT_EQ(w.statuses.last(), why);
    w.service->downloads().largePicFilePathForThumb(w.cell(1)); // this one is asked for
    w.run(60);
    EXPECT_EQ(downloads(), 1);
    w.run(3600 * 20); // past midnight
    EXPECT_EQ(w.http.posts().size(), 3);
    EXPECT_EQ(w.statuses.last(), why);
    why.clear();
    w.service->catchUp();
    w.run(60);
    EXPECT_EQ(w.http.posts().size(), 6); // today's
    EXPECT_EQ(downloads(), 4);
    w.service->catchUp();
    w.run(60);
    EXPECT_EQ(w.http.posts().size(), 6);
    w.run(3600 * 24);
    EXPECT_EQ(w.http.posts().size(), 9) << "the hourly passes go on";
}

TEST(PassAlone, asksAgainWhenTheConnectionIsBack)
{
    World w;
    w.addSources({Three[0]});
    const auto data = w.data;
    w.data = [](const QString &, const QString &) { return FakeHttp::Answer{{}, 500}; };
    w.startPass();
    w.data = data;
    const auto asked = w.http.posts().size();
    w.service->catchUp();
    w.run(5);
    EXPECT_EQ(w.http.posts().size(), asked);
    w.service->connectionIsBack();
    w.run(5);
    EXPECT_EQ(w.cell(0).captionField(), u"Caption A-7-4-2011"_s);
}

TEST(PassAlone, movesOnAtMidnightUnlessTheUserChoseADate)
{
    for (const bool userChose : {false, true}) {
        World w(QDateTime(QDate(2011, 7, 4), QTime(23, 50)));
        w.addSources({Three[0]});
        w.startPass(10);
        w.picker.userChangeDate = userChose;
        w.run(3610);
        EXPECT_EQ(w.picker.dateValue().date(), QDate(2011, 7, userChose ? 4 : 5));
        EXPECT_EQ(w.cell(0).dateString(), userChose ? u"July 4, 2011"_s : u"July 5, 2011"_s);
    }
}

TEST(PassAlone, stepsBackAWeek)
{
    for (const auto &[time, lastDay] : Table<QTime, int>{{QTime(9, 30), 6}, {QTime(0, 0), 7}}) {
        World w(QDateTime(QDate(2011, 7, 4), time));
        w.addSources({Three[0]});
        w.data = [](const QString &, const QString &) {
            return FakeHttp::Answer{"Error: nothing"};
        };
        w.startPass(30);
        QStringList wanted;
        for (int back = 0; back <= lastDay; ++back)
            wanted.append(body(
                Three[0], QLocale::c().toString(QDate(2011, 7, 4).addDays(-back), u"M/d/yyyy"_s)));
        EXPECT_EQ(w.http.posts(), wanted);
        EXPECT_TRUE(w.lines().isEmpty());
        EXPECT_EQ(w.cell(0).imageView().size(), QSize(2, 2)); // the blank picture
        EXPECT_FALSE(w.cell(0).isSpinning());
    }
}

TEST_F(Pass, fallsBackToTheLastDayWithAPicture)
{
    w.data = [](const QString &source, const QString &day) {
        const bool has = source != u"B" || day == u"7/2/2011";
        return FakeHttp::Answer{has ? World::goodAnswer(source, day)
                                    : QByteArray("p\nNo caption\nt\nl\n\n\ni")};
    };
    w.startPass();
    EXPECT_EQ(w.cell(1).dateString(), u"July 2, 2011"_s);
    EXPECT_EQ(w.cell(2).captionField(), u"Caption C-7-4-2011"_s);
    EXPECT_EQ(w.lines().size(), 3);
}

TEST(PassAlone, serviceDownIsToldAndRetriedSooner)
{
    World w;
    w.addSources({Three[0]});
    bool down = true;
    w.data = [&](const QString &source, const QString &day) {
        return down ? FakeHttp::Answer{{}, 500, u"Connection refused"_s}
                    : FakeHttp::Answer{World::goodAnswer(source, day)};
    };
    w.startPass(30);
    EXPECT_TRUE(w.statuses.contains(u"Connection refused"_s));
    EXPECT_EQ(w.http.posts().size(), 7);
    EXPECT_EQ(w.http.requests.size(), 7); // no large pictures after a failure
    down = false;
    w.service->thumbPass().loadNextThumb();
    w.run(10);
    EXPECT_EQ(w.http.posts().size(), 7);
    w.run(120);
    w.service->thumbPass().loadNextThumb();
    w.run(10);
    EXPECT_EQ(w.cell(0).captionField(), u"Caption A-7-4-2011"_s);
    EXPECT_EQ(w.newPictures, QStringList{u"A A-7-4-2011.jpg"_s});
}

TEST_F(Pass, emptyAnswerLeavesTheCellWaiting)
{
    w.data = [](const QString &, const QString &) { return FakeHttp::Answer{" \n "}; };
    w.startPass(20);
    EXPECT_EQ(w.http.posts().size(), 1);
    EXPECT_EQ(w.cell(0).captionField(), u"Looking for new pic..."_s);
}

TEST_F(Pass, slowThumbHoldsTheSequenceButNotTheUser)
{
    bool open = false;
    w.file = [&](const QString &link) -> std::optional<FakeHttp::Answer> {
        if (link.contains(u"thumb-A") && !open)
            return std::nullopt;
        return FakeHttp::Answer{"IMG"};
    };
    w.startPass(8);
    EXPECT_TRUE(w.loop.isHeld());
    EXPECT_TRUE(w.cell(0).isSpinning());
    EXPECT_EQ(w.http.posts().size(), 1);
    EXPECT_TRUE(w.lines().isEmpty()); // shown first, kept then
    open = true;
    w.run(10);
    EXPECT_FALSE(w.loop.isHeld());
    EXPECT_EQ(w.lines().size(), 3);
}

TEST_F(Pass, badThumbShowsTheLargePictureOrTheBlank)
{
    w.file = [](const QString &link) {
        return link.contains(u"thumb-") ? FakeHttp::Answer{"<html>404</html>"}
                                        : FakeHttp::Answer{"IMG"};
    };
    w.startPass();
    EXPECT_EQ(w.cell(0).imageView().size(), QSize(2, 2));
    EXPECT_TRUE(QDir(w.pictureFolder() + u"thumbs"_s).isEmpty());
    // The large picture is there by now.
    w.cell(0).showDate({});
    w.service->thumbPass().forgetLastDataCheck();
    w.startPass();
    EXPECT_EQ(w.cell(0).imageView().size(), QSize(4, 3));
}

TEST_F(Pass, refreshDropsTheRecordAndAsksAnew)
{
    w.startPass();
    w.data = [](const QString &source, const QString &day) {
        return FakeHttp::Answer{World::goodAnswer(source, day).replace("Caption", "New caption")};
    };
    w.service->refreshDataForThumb(w.cell(1));
    EXPECT_EQ(w.lines().size(), 2);
    EXPECT_TRUE(w.cell(1).isSpinning());
    EXPECT_TRUE(w.cell(1).picPath().isEmpty());
    w.run(10);
    EXPECT_EQ(w.http.posts().last(), body(Three[1], u"7/4/2011"_s) + u"&refresh=true"_s);
    EXPECT_EQ(w.cell(1).captionField(), u"New caption B-7-4-2011"_s);
    EXPECT_EQ(w.lines().size(), 3);
}

TEST(PassAlone, deletedAndLinklessRecordsComeFromTheStore)
{
    World w;
    w.home.write(u"data/Moravel/Moravel2.txt"_s,
                 "20110704\tA\tDELETED\thttp://pic/a.jpg\thttp://page\tGone\t\n"
                 "20110704\tB\t\thttp://pic/b.jpg\thttp://page\tNo thumb\t\n");
    w.addSources(Three.mid(0, 2));
    w.startPass();
    EXPECT_EQ(w.cell(0).captionField(), u"Deleted.\n\nDouble-click to un-delete."_s);
    EXPECT_EQ(w.cell(0).thumbPath(), ThumbView::deletedMark());
    EXPECT_EQ(w.cell(1).thumbPath(), u"http://pic/b.jpg"_s);
    EXPECT_TRUE(w.http.posts().isEmpty());
    EXPECT_EQ(w.newPictures, QStringList{u"B b.jpg"_s});
}

TEST(Downloads, nothingHalfAndNothingStrange)
{
    // file: what then lies in the Picture folder
    const Table<const char *, FakeHttp::Answer, const char *> cases{
        {"http://pic/x.jpg", {"IMG"}, "x.jpg"}, {"http://pic/view", {"IMG"}, "view.jpg"},
        {"http://pic/x.JPG", {"IMG"}, "x.JPG"}, {"http://one/http://pic/y.png", {"IMG"}, "y.png"},
        {"http://pic/x.html", {"IMG"}, ""},     {"http://pic/x.jpg", {"<html>"}, ""},
        {"http://pic/x.jpg", {"IMG", 404}, ""}, {"http://pic/x.jpg", {{}, 200, u"cut"_s}, ""},
        {"http://pic/%2e%2e", {"IMG"}, ""},     {"http://pic/", {"IMG"}, ""},
        {"file:///etc/x.jpg", {"IMG"}, ""},
    };
    for (const auto &[link, answer, file] : cases) {
        SCOPED_TRACE(link);
        World w;
        w.addSources({Three[0]});
        const QByteArray data = "http://page\nCaption\nhttp://pic/t.jpg\n";
        w.data = [all = data + link + "\n\n\nInfo"](const QString &, const QString &) {
            return FakeHttp::Answer{all};
        };
        w.file = [&answer = answer](const QString &url) {
            return url.contains(u"t.jpg") ? FakeHttp::Answer{"IMG"} : answer;
        };
        w.startPass(30);
        const QStringList files = QDir(w.pictureFolder()).entryList(QDir::Files | QDir::Hidden);
        EXPECT_EQ(files, *file ? QStringList{QString::fromLatin1(file)} : QStringList());
        EXPECT_EQ(w.statuses.last(), Hint);
    }
}

TEST_F(Pass, hiddenCellsAreSkippedAndQuittingLeavesNothing)
{
    w.cell(0).setHidden(true);
    w.file = [](const QString &link) -> std::optional<FakeHttp::Answer> {
        if (!link.contains(u"thumb-"))
            return std::nullopt; // never ends
        return FakeHttp::Answer{"IMG"};
    };
    w.startPass(30);
    EXPECT_TRUE(w.service->downloads().isActive());
    EXPECT_EQ(w.service->downloads().downloadPath(), w.pictureFolder() + u"C-7-4-2011.jpg"_s);
    EXPECT_EQ(QDir(w.pictureFolder()).entryList({u"*.part"_s}, QDir::Files | QDir::Hidden).size(),
              2);
    w.service->downloads().cancelAll();
    EXPECT_TRUE(QDir(w.pictureFolder()).entryList(QDir::Files | QDir::Hidden).isEmpty());
}

TEST_F(Pass, picturesOfTheFirstChosenSourcesComeAtOnce)
{
    for (int i = 0; i < 3; ++i)
        w.cell(i).setHidden(true);
    w.startPass(30);
    EXPECT_TRUE(QDir(w.pictureFolder()).entryList(QDir::Files).isEmpty());
    for (int i = 0; i < 3; ++i)
        w.cell(i).setHidden(false);
    w.service->sourcesChosen();
    w.run(10);
    EXPECT_EQ(QDir(w.pictureFolder()).entryList(QDir::Files).size(), 3);
}

TEST(Sources, keptForAStartWithoutNetwork)
{
    World w;
    int done = 0;
    const auto ask = [&](const FakeHttp::Answer &answer) {
        w.file = [answer](const QString &) { return answer; };
        w.service->sources().getSources([&] { ++done; });
        w.run(0.1);
        return w.names;
    };
    EXPECT_TRUE(ask({{}, 500}).isEmpty());
    EXPECT_EQ(ask({" \nLong A\tA\nLong B\tB\n\n"}).size(), 2);
    EXPECT_EQ(ask({" \n "}).size(), 2);
    EXPECT_EQ(ask({{}, 500}).size(), 2);
    EXPECT_EQ(ask({"\xFF\xFE\t\xFF"}).size(), 2);
    EXPECT_EQ(ask({"Long C\tC"}).size(), 1);
    EXPECT_EQ(done, 6);
    EXPECT_EQ(TempHome::read(w.home.path(u"data/Moravel/Moravel-Sources.txt"_s)), "Long C\tC");
}

} // namespace
