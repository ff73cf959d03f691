// SPDX-License-Identifier: MIT
// The handlers as functions: request in, answer out.
#include "server/Fakes.h"

#include <gtest/gtest.h>

namespace moravel::server {

namespace {

constexpr const char *allLines = "http://h:1/potd/pages/fake-20110704-page.html\n"
                                 "&lt;b&gt;Red&lt;/b&gt; &amp; round\n"
                                 "http://h:1/potd/pictures/fake-20110704-thumb.jpg\n"
                                 "http://h:1/potd/pictures/fake-20110704-1920x1080.jpg\n"
                                 "http://h:1/potd/pictures/fake-20110704-3840x2160.jpg\n"
                                 "3840,2160,1.66\n"
                                 "It is red. Made here. "
                                 "<a href=\"http://h:1/potd/pages/fake-20110704-page.html\">"
                                 "Fake &amp; co</a>\n";

}

TEST(Service, AnswersEveryForm)
{
    const FakeService fake;
    EXPECT_EQ(fake.get("/potd/defs/getSources.irev").content.bytes, "Fake & co\tFake\n");
    EXPECT_EQ(fake.day("option=all&source=Fake&date=7/4/2011"), allLines);
    const Response posted = fake.handle({"POST",
                                         "/potd/defs/moravel.irev",
                                         "h:1",
                                         "option=all&source=Fake&date=7%2F4%2F2011&refresh=true",
                                         {},
                                         {}});
    EXPECT_EQ(posted.content.bytes, allLines);
    EXPECT_EQ(fake.day("option=parent&source=Fake&date=7/4/2011"),
              "http://h:1/potd/pages/fake-20110704-page.html\n");
    EXPECT_EQ(fake.day("option=thumb&source=Fake&date=7/4/2011"),
              "http://h:1/potd/pictures/fake-20110704-thumb.jpg\n");
    EXPECT_EQ(fake.day("option=captionPlusText&source=Fake&date=7/4/2011&refresh=true"),
              QByteArray("&lt;b&gt;Red&lt;/b&gt; &amp; round\n")
                  + QByteArray(allLines).split('\n')[6] + '\n');
    EXPECT_EQ(fake.renders, 0); // Texts never wait for a picture.
}

TEST(Service, StatusOfGoodAndHostileRequests)
{
    const FakeService fake;
    const QByteArray day = "/potd/defs/moravel.irev?option=all&source=Fake&date=";
    const QByteArray source = "/potd/defs/moravel.irev?option=all&date=7/4/2011&source=";

    const struct
    {
        QByteArray target;
        int status;
        QByteArray start;
    } cases[] = {
        {day + "5/2/2020", 200, "http://h:1/"}, // Already tomorrow at UTC+14.
        {day + "5/3/2020", 200, "Error: That day has not come yet."},
        {day + "12/31/1899", 200, "Error: There are no pictures before 1900."},
        {day + "1/1/1900", 200, "http://h:1/"},
        {day, 400, "The field date is missing."},
        {day + "2/30/2011", 400, "The date"},
        {day + "99999999999999999999/4/2011", 400, "The date"},
        {day + "7/4/2011%00", 400, "The request's fields"},
        {day + "7/4/2011&option=all", 400, "The request's fields"},
        {source + "Nobody", 200, "Error: There is no source"},
        {source + "fake", 200, "Error: There is no source"},
        {source + "../../etc", 200, "Error: There is no source"},
        {source + "%E2%98%BA", 200, "Error: There is no source"},
        {source + QByteArray(100'000, 'x'), 200, "Error: There is no source"},
        {source + "Fake%0d%0aX: y", 400, "The request's fields"},
        {"/potd/defs/moravel.irev", 400, "The field option is missing."},
        {"/potd/defs/moravel.irev?option=none&source=Fake&date=7/4/2011", 400,
         "The option is unknown."},
        {"/potd/defs/moravel.irev?option=parent&source=Nobody&date=7/4/2011", 200, ""},
        {"/potd/defs/getNews.irev?timestamp=x", 200, ""},
        {"/potd/defs/moravel%2Eirev", 400, "The field option"},
        {"/potd/%", 400, "The address"},
        {"/potd/%00", 400, "The address"},
        {"", 404, "There is nothing here."},
        {"/potd/defs/", 404, "There is nothing here."},
        {"/potd/pages/../../../etc/passwd", 404, "There is nothing here."},
        {"/potd/pages/fake-20110704-thumb.jpg", 404, "There is nothing here."},
        {"/potd/pages/fake-20110704-page.html", 200, "<!DOCTYPE html>"},
        {"/potd/release.html", 200, "<!DOCTYPE html>"},
        {"/potd/", 200, "<!DOCTYPE html>"},
        {"/potd/pictures/fake-20110704-800x600.jpg", 404, "There is nothing here."},
        {"/potd/pictures/fake-20110704-original.jpg", 404, "There is nothing here."},
        {"/potd/pictures/fake-20990704-thumb.jpg", 404, "That day has not come yet."},
        {"/potd/pictures/none-20110704-thumb.jpg", 404, "There is nothing here."},
    };

    for (const auto &[target, status, start] : cases) {
        SCOPED_TRACE(target.left(100).toStdString());
        const Response response = fake.get(target);
        EXPECT_EQ(response.status, status);
        EXPECT_EQ(response.content.bytes.left(start.size()).toStdString(), start.toStdString());
        EXPECT_FALSE(start.isEmpty() && !response.content.bytes.isEmpty());
    }
}

TEST(Service, MethodsThatAddressesTake)
{
    const FakeService fake;
    for (const QByteArray method : {"PUT", "DELETE", "OPTIONS", "POST", "get", ""}) {
        const Response response = fake.handle({method, "/potd/release.html", "h:1", {}, {}, {}});
        EXPECT_EQ(response.status, 405) << method.toStdString();
        EXPECT_EQ(response.header("Allow"), "GET, HEAD");
    }
}

TEST(Service, LinksUseTheRequestsHostOnlyIfItIsPlain)
{
    const FakeService fake;
    const QByteArray target = "/potd/defs/moravel.irev?option=parent&source=Fake&date=7/4/2011";
    EXPECT_TRUE(
        fake.get(target, "pictures.org").content.bytes.startsWith("http://pictures.org/potd/"));
    for (const QByteArray &host :
         {QByteArray(), QByteArray("a\nb"), QByteArray("a/b?"), QByteArray("a\"><x>")})
        EXPECT_TRUE(fake.get(target, host).content.bytes.startsWith("http://127.0.0.1:1/potd/"));
}

TEST(Service, PagesEscapeWhatSourcesSay)
{
    const FakeService fake;
    const QByteArray html = fake.get("/potd/pages/fake-20110704-page.html").content.bytes;
    EXPECT_TRUE(html.contains("&lt;b&gt;Red&lt;/b&gt; &amp; round"));
    EXPECT_FALSE(html.contains("<b>"));
    EXPECT_TRUE(html.contains("July 4, 2011"));
    EXPECT_TRUE(html.contains("fake-20110705-page.html"));
    EXPECT_FALSE(
        fake.get("/potd/pages/fake-20200502-page.html").content.bytes.contains("Day after"));
}

TEST(Service, NewsIsTheFileAsItIsNow)
{
    const FakeService fake;
    EXPECT_EQ(fake.get("/potd/defs/getNews.irev").content.bytes, "");
    fake.home.write(QStringLiteral("news.txt"), "Title\nBody\n");
    EXPECT_EQ(fake.get("/potd/defs/getNews.irev?timestamp=1").content.bytes, "Title\nBody");
    fake.home.write(QStringLiteral("news.txt"), QByteArray(100'000, 'x'));
    EXPECT_EQ(fake.get("/potd/defs/getNews.irev").content.bytes, "");
}

TEST(Service, PicturesAreMadeOnceAndRevalidated)
{
    const FakeService fake;

    const struct
    {
        const char *suffix;
        QSize size;
    } kinds[] = {{"thumb.jpg", {400, 225}},
                 {"1920x1080.jpg", {1920, 1080}},
                 {"3840x2160.jpg", {3840, 2160}}};

    for (const auto &[suffix, size] : kinds) {
        SCOPED_TRACE(suffix);
        const QByteArray target = QByteArray("/potd/pictures/fake-20110704-") + suffix;
        fake.get(target);
        const Response response = fake.get(target);
        ASSERT_TRUE(response.content.file);
        EXPECT_EQ(QImage::fromData(response.content.file->readAll()).size(), size);
        EXPECT_TRUE(response.header("Cache-Control").contains("immutable"));
        const QByteArray tag = response.header("ETag");
        const QByteArray since = response.header("Last-Modified");
        const auto statusFor = [&](const QByteArray &match, const QByteArray &date) {
            return fake.handle({"GET", target, "h:1", {}, match, date}).status;
        };
        EXPECT_EQ(statusFor(tag, {}), 304);
        EXPECT_EQ(statusFor("\"x\", W/" + tag, {}), 304);
        EXPECT_EQ(statusFor("\"x\"", since), 200); // The tag is the stronger word.
        EXPECT_EQ(statusFor({}, since), 304);
        EXPECT_EQ(statusFor({}, "yesterday"), 200);
    }
    EXPECT_EQ(fake.renders, 3);
}

TEST(Service, SourcesSayWhyThereIsNoPicture)
{
    const struct
    {
        Reason reason;
        int retryAfter;
        int status;
    } cases[] = {{Reason::NothingThatDay, 0, 404},
                 {Reason::NotAPicture, 0, 404},
                 {Reason::Retired, 0, 404},
                 {Reason::NotYetPublished, 0, 404},
                 {Reason::RateLimited, 60, 503},
                 {Reason::SourceDown, 0, 503},
                 {Reason::Busy, 5, 503}};

    for (const auto &[reason, retryAfter, status] : cases) {
        FakeService fake;
        fake.sources.add(std::make_unique<FakeUnavailable>(
            Unavailable{reason, QStringLiteral("Why\nnot."), retryAfter}));
        EXPECT_EQ(fake.day("option=all&source=Away&date=7/4/2011"), "Error: Why not.\n");
        EXPECT_EQ(fake.day("option=thumb&source=Away&date=7/4/2011"), "");
        const Response picture = fake.get("/potd/pictures/away-20110704-thumb.jpg");
        EXPECT_EQ(picture.status, status);
        EXPECT_EQ(picture.header("Retry-After"),
                  retryAfter ? QByteArray::number(retryAfter) : QByteArray());
    }
}

TEST(SourceList, RefusesUnusableAndTakenNames)
{
    FakeService fake;
    EXPECT_FALSE(fake.sources.add(std::make_unique<ComputedPictures>(
        std::make_unique<FakeComputed>(fake.renders), fake.cache)));
    for (const char *bad : {"", "a b", "a1", "../a", "a\u00e9"})
        EXPECT_FALSE(isShortName(QString::fromUtf8(bad))) << bad;
}

} // namespace moravel::server
