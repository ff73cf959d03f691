// SPDX-License-Identifier: MIT
// Every adapter against answers in the documented form, and against what goes wrong with them.
#include "server/sources/net/Adapters.h"

#include "server/ScriptedUpstream.h"
#include "server/network/CurlHttp.h"
#include "server/sources/net/Choice.h"

#include <gtest/gtest.h>

namespace moravel::server {

namespace {

using Route = ScriptedUpstream::Route;

struct Case
{
    const char *what;
    std::unique_ptr<Adapter> (*make)(const AdapterSetup &);
    std::vector<Route> routes;
    const char *kind;
    std::vector<QByteArray> holds = {}; ///< Parts of the outcome's text.
    QDate date = {2024, 1, 14};
};

void PrintTo(const Case &given, std::ostream *out)
{
    *out << given.kind << ", " << given.what;
}

class Adapters : public ::testing::TestWithParam<Case>
{ };

const char *const apodPath = "/planetary/apod?api_key=k&date=2024-01-14&thumbs=true";
const char *const apodToday = "/planetary/apod?api_key=k&date=2024-01-15&thumbs=true";
const char *const wikiPath =
    "/w/api.php?action=query&format=json&generator=images&titles=Template:Potd/2024-01-14&prop="
    "imageinfo&iiprop=url%7Csize%7Cmime%7Cextmetadata&iiurlwidth=960";
const char *const wikiCaption =
    "/w/api.php?action=parse&format=json&prop=text&page=Template:Potd/2024-01-14%20(en)";
const char *const bingPath = "/HPImageArchive.aspx?format=js&idx=0&n=8&mkt=en-US";

QByteArray apod(const QByteArray &more)
{
    return R"({"date":"2024-01-14","title":"A <b>Star</b> &amp; more","explanation":"It shines.",)"
           R"("media_type":"image","url":"@/s.jpg")"
        + more + '}';
}

QByteArray wiki(const QByteArray &mime, int width, int height)
{
    return R"({"query":{"pages":{"7":{"title":"File:Old_harbour.jpg","imageinfo":[{"mime":")" + mime
        + R"(","width":)" + QByteArray::number(width) + R"(,"height":)" + QByteArray::number(height)
        + R"(,"size":9000000,"url":"https://u.org/a/Old_harbour.jpg",)"
          R"("thumburl":"https://u.org/thumb/a/Old_harbour.jpg/960px-Old_harbour.jpg",)"
          R"("descriptionurl":"https://c.org/wiki/File:Old_harbour.jpg","extmetadata":{)"
          R"("Artist":{"value":"<a href='x'>Jane Doe</a>"},"LicenseShortName":{"value":"CC BY-SA 4.0"},)"
          R"("ImageDescription":{"value":"<p>The old&nbsp;harbour</p>"}}}]}}}})";
}

QByteArray bing(const QByteArray &more)
{
    return R"x({"images":[{"startdate":"20240114","urlbase":"/th?id=OHR.X","title":"Info","copyright":)x"
           R"x("Harbour at dusk (© Jane/Agency)","copyrightlink":"/search?q=x")x"
        + more + "}]}";
}

QByteArray feed(const QByteArray &item)
{
    return R"(<?xml version="1.0"?><rss version="2.0" xmlns:media="m"><channel><title>Ours</title>)"
           R"(<item><title>A &lt;i&gt;new&lt;/i&gt; day</title><link>/day/14</link>)"
           R"(<pubDate>Sun, 14 Jan 2024 06:00:00 GMT</pubDate>)"
        + item + "</item></channel></rss>";
}

QByteArray atom(const QByteArray &link)
{
    return R"(<feed xmlns="http://www.w3.org/2005/Atom"><title>E</title><entry><title>Halo</title>)"
           R"(<published>2024-01-14T05:00:00-05:00</published><link rel="alternate" href=")"
        + link
        + R"("/><content type="html">&lt;p&gt;No picture here.&lt;/p&gt;</content></entry></feed>)";
}

QByteArray d2d(const QByteArray &resources)
{
    return R"({"Collections":[{"ID":"potw1","Title":"Galaxy","Description":"<p>Far away</p>",)"
           R"("Credit":"ESA/Hubble &amp; NASA","Rights":"CC BY 4.0","PublicationDate":"2024-01-14T06:00:00",)"
           R"("Assets":[{"Resources":[)"
        + resources + "]}]}]}";
}

const char *const hugeAndLarge =
    R"({"URL":"https://e.org/o.jpg","Dimensions":[20000,20000],"FileSize":300000000},)"
    R"({"URL":"https://e.org/l.jpg","Dimensions":[4000,3000],"FileSize":5000000},)"
    R"({"URL":"https://e.org/s.jpg","Dimensions":[1280,960],"FileSize":200000},"x")";

Route numbered(const char *name, const char *path, int most, const QByteArray &body,
               int attempt = 0)
{
    const int number = chosenNumber(name, {2024, 1, 14}, attempt, most);
    return {QByteArray(path).replace('#', QByteArray::number(number)), body};
}

const char *const articPath =
    "/api/v1/artworks/#?fields=id,title,artist_display,date_display,medium_display,credit_line,"
    "image_id,is_public_domain,thumbnail,short_description";

// clang-format off
std::vector<Case> cases()
{
    const QByteArray item = "<enclosure url='/e.jpg' type='image/jpeg'/>";
    return {
        {"a picture", makeApod, {{apodPath, apod(R"(,"hdurl":"@/h.jpg")")}, {"/h.jpg", "JPEG"}, {"/s.jpg", "JPEG"}},
         "picture", {R"("caption":"A Star & more")", "NASA, public domain", R"("full":"@/h.jpg")", R"("width":64)", "ap240114.html"}},
        {"its owner", makeApod, {{apodPath, apod(R"(,"copyright":"\nJane\nDoe\n")")}, {"/s.jpg", "JPEG"}}, "picture", {"© Jane Doe."}},
        {"no large one", makeApod, {{apodPath, apod({})}, {"/s.jpg", "JPEG"}}, "picture", {R"("full":"@/s.jpg")"}},
        {"the large one missing", makeApod, {{apodPath, apod(R"(,"hdurl":"@/h.jpg")")}, {"/s.jpg", "JPEG"}}, "picture", {R"("full":"@/s.jpg")"}},
        {"a page called .jpg", makeApod, {{apodPath, apod(R"(,"hdurl":"@/h.jpg")")}, {"/h.jpg", "<html>"}, {"/s.jpg", "JPEG"}}, "picture", {R"("full":"@/s.jpg")"}},
        {"only pages", makeApod, {{apodPath, apod({})}, {"/s.jpg", "<html>"}}, "not_a_picture"},
        {"its pictures fail for now", makeApod, {{apodPath, apod(R"(,"hdurl":"@/h.jpg")")}, {"/h.jpg", "x", 503}}, "down", {"its picture"}},
        {"a video", makeApod, {{apodPath, R"({"date":"2024-01-14","media_type":"video","url":"https://v"})"}}, "not_a_picture", {"a video"}},
        {"something else", makeApod, {{apodPath, R"({"date":"2024-01-14","media_type":"other"})"}}, "not_a_picture"},
        {"another day's", makeApod, {{apodToday, apod({})}}, "not_yet", {}, {2024, 1, 15}},
        {"midnight, missing", makeApod, {}, "not_yet", {}, {2024, 1, 15}},
        {"midnight, failing", makeApod, {{apodToday, "x", 500}}, "not_yet", {}, {2024, 1, 15}},
        {"failing long after", makeApod, {{"/planetary/apod?api_key=k&date=2024-01-01&thumbs=true", "x", 500}}, "down", {}, {2024, 1, 1}},
        {"before the first", makeApod, {}, "nothing", {}, {1995, 6, 15}},
        {"limited until", makeApod, {{apodPath, "{}", 429, "Retry-After: 100"}}, "rate_limited", {R"("until":1705320100)"}},
        {"limited", makeApod, {{apodPath, "{}", 429}}, "rate_limited", {R"("until":1705320900)"}},
        {"refused", makeApod, {{apodPath, "{}", 403}}, "down", {"403"}},
        {"gone", makeApod, {{apodPath, "{}", 410}}, "retired"},
        {"not JSON", makeApod, {{apodPath, "<html>"}}, "down"},

        {"a picture", makeCommons, {{wikiPath, wiki("image/jpeg", 6000, 4000)}, {wikiCaption, R"({"parse":{"text":{"*":"<p>A <i>harbour</i></p>"}}})"}},
         "picture", {R"("caption":"A harbour")", R"("info":"The old harbour")", "Jane Doe, CC BY-SA 4.0", "/500px-Old", "/1920px-Old", R"("full":"https://u.org/a/Old_harbour.jpg")", R"("megabytes":9.0)", "File:"}},
        {"a small one", makeCommons, {{wikiPath, wiki("image/jpeg", 1000, 800)}}, "picture", {R"("caption":"Old harbour")", R"("normal":"https://u.org/a/Old_harbour.jpg")", "/500px-"}},
        {"a gigantic one", makeCommons, {{wikiPath, wiki("image/jpeg", 20000, 10000)}}, "picture", {R"("full":"https://u.org/thumb/a/Old_harbour.jpg/3840px-)", R"("width":3840)"}},
        {"a TIFF", makeCommons, {{wikiPath, wiki("image/tiff", 1000, 800)}}, "picture", {"/960px-", "/500px-", R"("width":960)"}},
        {"a narrow giant", makeCommons, {{wikiPath, wiki("image/jpeg", 3000, 30000)}}, "picture", {R"("full":"https://u.org/thumb/a/Old_harbour.jpg/1920px-)"}},
        {"words for now missing", makeCommons, {{wikiPath, wiki("image/jpeg", 1000, 800)}, {wikiCaption, "x", 503, "Retry-After: 9"}}, "rate_limited"},
        {"a video", makeCommons, {{wikiPath, wiki("video/webm", 1, 1)}}, "not_a_picture", {"a video"}},
        {"a sound", makeCommons, {{wikiPath, wiki("audio/ogg", 1, 1)}}, "not_a_picture"},
        {"a drawing", makeCommons, {{wikiPath, wiki("image/svg+xml", 1, 1)}}, "not_a_picture"},
        {"no such day", makeCommons, {{QByteArray(wikiPath).replace("2024-01-14", "2003-01-14"), R"({"batchcomplete":""})"}}, "nothing", {}, {2003, 1, 14}},
        {"odd types", makeCommons, {{wikiPath, R"({"query":{"pages":{"7":{"imageinfo":[{"mime":5,"url":[]}]}}}})"}}, "not_a_picture"},
        {"no user agent", makeCommons, {{wikiPath, "x", 403}}, "down"},

        {"a picture", makeBing, {{bingPath, bing({})}, {"/th?id=OHR.X_UHD.jpg", "JPEG"}}, "picture",
         {R"("caption":"Harbour at dusk")", "© Jane/Agency. Bing", R"("full":"@/th?id=OHR.X_UHD.jpg")", "_1920x1080.jpg", R"("page":"@/search?q=x")"}},
        {"no large one", makeBing, {{bingPath, bing({})}, {"/th?id=OHR.X_1920x1080.jpg", "JPEG"}}, "picture", {R"("full":"@/th?id=OHR.X_1920x1080.jpg")"}},
        {"not as wallpaper", makeBing, {{bingPath, bing(R"(,"wp":false)")}}, "not_a_picture"},
        {"tomorrow's", makeBing, {{bingPath, bing({})}}, "not_yet", {}, {2024, 1, 15}},
        {"too old", makeBing, {{bingPath, bing({})}, {QByteArray(bingPath).replace("idx=0", "idx=7"), "{}"}}, "nothing", {}, {2024, 1, 1}},

        {"a picture", makeEarthObservatory, {{"/feeds/image-of-the-day.rss", feed("<description>x &lt;img src='/a_th.jpg'></description>")}, {"/a_lrg.jpg", "JPEG"}},
         "picture", {R"("full":"@/a_lrg.jpg")", R"("thumb":"@/a_th.jpg")", R"("page":"@/day/14")", "NASA Earth Observatory"}},
        {"no large one", makeEarthObservatory, {{"/feeds/image-of-the-day.rss", feed("<description>&lt;img src='/a_th.jpg'></description>")}, {"/a_th.jpg", "JPEG"}}, "picture", {R"("full":"@/a_th.jpg")"}},
        {"somebody's own", makeEarthObservatory, {{"/feeds/image-of-the-day.rss", feed("<description>© Jane &lt;img src='/a_th.jpg'></description>")}, {"/a_th.jpg", "JPEG"}}, "picture", {"a copyright is shown"}},
        {"no feed", makeEarthObservatory, {}, "down"},

        {"a picture", makeEpod, {{"/blog/atom.xml", atom("@/p.html")}, {"/p.html", "<meta property='og:image' content='/o.jpg'><b>Photographer</b>: <a>Jane Doe</a><br>"}, {"/o.jpg", "JPEG"}},
         "picture", {R"("caption":"Halo")", "© Jane Doe", R"("full":"@/o.jpg")", R"("page":"@/p.html")"}},
        {"another layout", makeEpod, {{"/blog/atom.xml", atom("/p.html")}, {"/p.html", "<img src=logo.gif><IMG alt='>' src = \"/i.jpg\"><img src='@/i.jpg'>"}, {"/i.jpg", "JPEG"}}, "picture", {"keeps the rights"}},
        {"no page", makeEpod, {{"/blog/atom.xml", atom("@/p.html")}}, "nothing"},

        {"a picture", makeEsaHubble, {{"/images/d2d/?page=1", d2d(hugeAndLarge)}}, "picture",
         {R"("full":"https://e.org/l.jpg")", R"("thumb":"https://e.org/s.jpg")", R"("megabytes":5.0)", "ESA/Hubble & NASA, CC BY 4.0.", "Far away"}},
        {"only an original", makeEsaHubble, {{"/images/d2d/?page=1", d2d(R"({"URL":"https://e.org/o.tif","Dimensions":[20000,20000]})")}}, "not_a_picture"},
        {"a day between", makeEsaHubble, {{"/images/d2d/?page=1", d2d(hugeAndLarge)}}, "not_yet", {}, {2024, 1, 15}},

        {"the second try", makeMet,
         {numbered("Met", "/public/collection/v1/objects/#", 900000, R"({"isPublicDomain":true,"primaryImage":""})"),
          numbered("Met", "/public/collection/v1/objects/#", 900000, R"({"isPublicDomain":true,"primaryImage":"@/p.jpg","title":"","objectName":"Vase"})", 1), {"/p.jpg", "JPEG"}},
         "picture", {R"("caption":"Vase")", "CC0", R"("thumb":"@/p.jpg")"}},
        {"its picture fails for now", makeMet, {numbered("Met", "/public/collection/v1/objects/#", 900000, R"({"isPublicDomain":true,"primaryImage":"@/p.jpg"})"), {"/p.jpg", "x", 429}}, "rate_limited"},
        {"none is free", makeMet, {}, "nothing"},
        {"limited", makeMet, {{numbered("Met", "/public/collection/v1/objects/#", 900000, {}).target, "x", 503, "Retry-After: 9"}}, "rate_limited"},

        {"a picture", makeArtic, {numbered("Artic", articPath, 270000, R"({"data":{"is_public_domain":true,"title":"Bridge","image_id":"0123-4567-89","thumbnail":{"width":3372,"height":2000,"alt_text":"A bridge"}},"config":{"iiif_url":"https://i.org/2"}})")},
         "picture", {R"("normal":"https://i.org/2/0123-4567-89/full/1686,/0/default.jpg")", "A bridge", R"("height":1000)"}},
        {"a small one", makeArtic, {numbered("Artic", articPath, 270000, R"({"data":{"is_public_domain":true,"image_id":"0123-4567-89","thumbnail":{"width":300,"height":200}}})")},
         "picture", {R"("thumb":"https://www.artic.edu/iiif/2/0123-4567-89/full/300,/0/default.jpg")", R"("width":300)"}},
        {"hostile identity", makeArtic, {numbered("Artic", articPath, 270000, R"({"data":{"is_public_domain":true,"image_id":"../../etc"}})")}, "nothing"},

        {"an enclosure", makeFeed, {{"/f", feed(item)}, {"/e.jpg", "JPEG"}}, "picture", {R"("caption":"A new day")", R"("full":"@/e.jpg")", R"("page":"@/day/14")", R"("credit":"Ours.")"}},
        {"the largest medium", makeFeed, {{"/f", feed("<media:group><media:content url='@/1.jpg' width='9'/><media:content url='@/2.jpg' width='90' medium='image'/></media:group><media:content url='/v.mp4' medium='video' width='999'/>")}, {"/2.jpg", "JPEG"}}, "picture", {R"("full":"@/2.jpg")"}},
        {"what is no address", makeFeed, {{"/f", feed("<description>&lt;img src='data:image/png;base64,x'></description>")}}, "not_a_picture"},
        {"a wrong type", makeFeed, {{"/f", feed("<enclosure url='/e.mp3' type='audio/mpeg'/>")}}, "not_a_picture"},
        {"a page called .jpg", makeFeed, {{"/f", feed(item)}, {"/e.jpg", "<html>"}}, "not_a_picture"},
        {"another day", makeFeed, {{"/f", feed(item)}}, "nothing", {}, {2024, 1, 12}},
        {"no XML", makeFeed, {{"/f", "{}"}}, "down"},
        {"broken off", makeFeed, {{"/f", feed(item).left(230)}}, "not_a_picture"},
    };
}

// clang-format on

} // namespace

TEST_P(Adapters, TellWhatTheirSourceSays)
{
    const Case &given = GetParam();
    SCOPED_TRACE(given.what);
    ScriptedUpstream upstream(given.routes);
    const QUrl address = given.make == makeFeed ? upstream.url("/f") : upstream.url();
    const auto adapter = given.make({address, QStringLiteral("k"), {}, {}});
    CurlHttp http(QStringLiteral("test@localhost"));
    Asking asking({http, QDateTime(QDate(2024, 1, 15), QTime(12, 0), Qt::UTC),
                   std::chrono::steady_clock::now() + std::chrono::seconds(20), true});
    const Outcome outcome = checked(adapter->ask(given.date, asking));
    const QByteArray text = toJson(outcome);
    EXPECT_STREQ(kindName(outcome), given.kind) << text.toStdString();
    for (QByteArray part : given.holds)
        EXPECT_TRUE(text.contains(part.replace('@', upstream.base())))
            << part.toStdString() << " in " << text.toStdString();
    EXPECT_EQ(toJson(*outcomeFrom(text)), text);
}

TEST(Apod, SaysThatItWantsAKey)
{
    CurlHttp http(QStringLiteral("test@localhost"));
    Asking asking({http, QDateTime(QDate(2024, 1, 15), QTime(12, 0), Qt::UTC), {}, true});
    const Outcome outcome = makeApod({})->ask({2024, 1, 14}, asking);
    EXPECT_TRUE(toJson(outcome).contains("wants a key"));
}

INSTANTIATE_TEST_SUITE_P(All, Adapters, ::testing::ValuesIn(cases()));

} // namespace moravel::server
