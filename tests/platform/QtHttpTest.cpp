// SPDX-License-Identifier: MIT
#include "platform/qt/QtHttp.h"

#include "support/LoopbackServer.h"
#include "support/Wait.h"

#include <QTcpServer>

#include <optional>
#include <random>

using moravel::FetchResult;
using moravel::HttpCallHandle;
using moravel::HttpError;
using moravel::HttpHandlers;
using moravel::HttpRequest;
using moravel::HttpResponse;
using moravel::QtHttp;
using moravel::testing::LoopbackServer;
using Answer = LoopbackServer::Answer;

namespace {

constexpr double NeverIdle = 60;

HttpRequest get(const QUrl &url)
{
    HttpRequest request;
    request.url = url;
    request.idleTimeout = NeverIdle;
    return request;
}

HttpRequest post(const QUrl &url, const QByteArray &body)
{
    HttpRequest request = get(url);
    request.method = "POST";
    request.headers = {{"Content-Type", "application/x-www-form-urlencoded"},
                       {"Content-Length", QByteArray::number(body.size())}};
    request.body = body;
    return request;
}

QByteArray deflated(const QByteArray &bytes)
{
    return qCompress(bytes, 9).mid(4); // without Qt's length; a zlib stream is what "deflate" names
}

QByteArray noise(int size)
{
    QByteArray bytes;
    std::mt19937 random(1);
    while (bytes.size() < size)
        bytes += char(random());
    return bytes;
}

class QtHttpTest : public testing::Test
{
protected:
    FetchResult fetch(const HttpRequest &request)
    {
        std::optional<FetchResult> result;
        http.fetch(request, [&](FetchResult answer) { result = std::move(answer); });
        EXPECT_FALSE(result) << "called back from within fetch()";
        EXPECT_TRUE(moravel::testing::waitFor([&] { return result.has_value(); }));
        return result.value_or(tl::unexpected(HttpError{-1, QStringLiteral("no answer")}));
    }

    LoopbackServer server;
    QtHttp http;
};

TEST_F(QtHttpTest, DeliversAnAnswerInParts)
{
    const QByteArray body(1'000'000, 'x');
    server.answer("/pic", {.body = body, .headers = {{"Content-Type", "image/jpeg"}}});
    QStringList events;
    QByteArray received;
    HttpHandlers handlers;
    handlers.onResponse = [&](const HttpResponse &response) {
        events += QStringLiteral("response");
        EXPECT_EQ(response.status, 200);
        EXPECT_EQ(response.expectedLength, body.size());
        EXPECT_EQ(response.contentType, "image/jpeg");
    };
    handlers.onData = [&](const QByteArray &block) {
        received += block;
        EXPECT_LE(block.size(), 256 * 1024);
    };
    handlers.onFinished = [&] { events += QStringLiteral("finished"); };
    handlers.onFailed = [&](const HttpError &error) { events += error.description; };
    const HttpCallHandle call = http.start(get(server.url(QStringLiteral("/pic"))), handlers);
    ASSERT_TRUE(call);
    EXPECT_TRUE(events.isEmpty());
    MORAVEL_WAIT(events.size() == 2);
    EXPECT_EQ(events.join(u' '), QStringLiteral("response finished"));
    EXPECT_EQ(received, body);
}

TEST_F(QtHttpTest, SendsWhatItWasGivenAndNoMore)
{
    server.answer("/", {.body = "ok", .headers = {{"Set-Cookie", "a=b"}}});
    HttpRequest request = get(server.url());
    request.url.setUserInfo(QStringLiteral("me:secret"));
    ASSERT_TRUE(fetch(request));
    ASSERT_TRUE(fetch(request));
    ASSERT_TRUE(fetch(post(server.url(), "day=1")));
    ASSERT_EQ(server.requests().size(), 3);
    for (const auto &seen : server.requests()) {
        EXPECT_TRUE(seen.header("User-Agent").startsWith("Moravel/"));
        EXPECT_EQ(seen.header("Cookie"), "");
        EXPECT_EQ(seen.header("Authorization"), "");
        EXPECT_EQ(seen.header("Upgrade"), "");
    }
    EXPECT_EQ(server.requests().at(1).connection, 1) << "a GET reuses the connection";
    const auto &posted = server.requests().last();
    EXPECT_EQ(posted.method, "POST");
    EXPECT_EQ(posted.body, "day=1");
    EXPECT_EQ(posted.header("Content-Type"), "application/x-www-form-urlencoded");
    EXPECT_EQ(posted.header("Content-Length"), "5");
}

TEST_F(QtHttpTest, RefusesWhatCannotBeSent)
{
    HttpRequest split = get(server.url());
    split.headers = {{"X-Name", "a\r\nX-Other: b"}};
    HttpRequest method = get(server.url());
    method.method = "GET / HTTP/1.1\r\nX:";
    const QList<HttpRequest> requests{get(QUrl()),
                                      get(QUrl(QStringLiteral("file:///etc/passwd"))),
                                      get(QUrl(QStringLiteral("ftp://127.0.0.1/x"))),
                                      get(QUrl(QStringLiteral("data:text/plain,x"))),
                                      get(QUrl(QStringLiteral("qrc:/x"))),
                                      get(QUrl(QStringLiteral("http:///x"))),
                                      get(QUrl(QStringLiteral("relative"))),
                                      split,
                                      method};
    for (const HttpRequest &request : requests) {
        SCOPED_TRACE(request.url.toEncoded().constData());
        EXPECT_FALSE(http.start(request, {}));
        EXPECT_FALSE(fetch(request));
    }
    EXPECT_EQ(server.connectionCount(), 0);
}

struct HostileCase
{
    const char *name;
    Answer answer;
    int status = 0;
    const char *words = "";
};

TEST_F(QtHttpTest, FailsOnHostileAnswers)
{
    const QByteArray text(1000, 'x');
    const LoopbackServer::Headers isPacked{{"Content-Encoding", "deflate"}};
    const QByteArray packed = deflated(noise(100'000));
    const char *lost = "connection was lost";
    const char *odd = "not be understood";
    const char *large = "larger than";
    const QList<HostileCase> cases{
        {"garbage", {.raw = QByteArray("\0\1\2\3garbage\n\n\n", 14), .close = true}, 0, lost},
        {"garbage, kept open", {.raw = QByteArray(100'000, '\xEE')}, 0, lost},
        {"a mail server", {.raw = "220 mail ESMTP\r\n", .close = true}, 0, lost},
        {"nothing", {.raw = "", .close = true}, 0, lost},
        {"half a status line", {.body = text, .cutAfter = 7}, 0, lost},
        {"half a head", {.body = text, .cutAfter = 30}, 0, lost},
        {"cut in the body", {.body = text, .cutAfter = 500}, 0, lost},
        {"cut after the head", {.headers = {{"Content-Length", "10"}}, .close = true}, 0, lost},
        {"cut chunks", {.body = text, .chunked = true, .cutAfter = 500}, 0, lost},
        {"no closing chunk", {.body = text, .chunked = true, .cutAfter = 47 + 5 + 1000}, 0, lost},
        {"cut while packed", {.body = packed, .headers = isPacked, .cutAfter = 50'000}, 0, lost},
        {"cut packed chunks",
         {.body = packed, .headers = isPacked, .chunked = true, .cutAfter = 50'000},
         0,
         lost},
        {"packed, ends early", {.body = packed.left(50'000), .headers = isPacked}, 0, lost},
        {"packed, never ends",
         {.raw = "HTTP/1.0 200 OK\r\nContent-Encoding: deflate\r\n\r\n" + packed.left(50'000),
          .close = true},
         0,
         lost},
        {"not packed at all", {.body = "\x78\xDA" + text, .headers = isPacked}, 0, odd},
        {"packed unknown", {.body = text, .headers = {{"Content-Encoding", "snappy"}}}, 0, odd},
        {"length is a word",
         {.body = text, .headers = {{"Content-Length", "ten"}}, .close = true},
         0,
         odd},
        {"length below zero",
         {.body = text, .headers = {{"Content-Length", "-7"}}, .close = true},
         0,
         odd},
        {"announces too much", {.headers = {{"Content-Length", "4194305"}}}, 0, large},
        {"announces the moon", {.headers = {{"Content-Length", "999999999999999999"}}}, 0, large},
        {"50 MB in a line",
         {.raw = "HTTP/1.1 200 OK\r\n\r\n" + QByteArray(50'000'000, 'x')},
         0,
         large},
        {"50 MB chunk", {.body = QByteArray(50'000'000, 'x'), .chunked = true}, 0, large},
        {"bomb", {.body = deflated(QByteArray(200'000'000, 'x')), .headers = isPacked}, 0, large},
        {"500", {.status = 500, .body = "secret"}, 500, "500 (internal error)"},
        {"404", {.status = 404}, 404, "404 (not found)"},
        {"401",
         {.status = 401, .headers = {{"WWW-Authenticate", "Basic realm=\"x\""}}},
         401,
         "login"},
        {"407",
         {.status = 407, .headers = {{"Proxy-Authenticate", "Basic realm=\"x\""}}},
         407,
         "407"},
        {"to a file", LoopbackServer::redirect("file:///etc/passwd"), 302, "forbidden address"},
        {"to data", LoopbackServer::redirect("data:text/plain,hello"), 301, "forbidden address"},
        {"to ftp", LoopbackServer::redirect("ftp://127.0.0.1/"), 302, "forbidden address"},
        {"to a resource", LoopbackServer::redirect("qrc:/moravel/blank.png"), 302, "forbidden"},
        {"in a circle", LoopbackServer::redirect("/in a circle"), 302, "unexpected answer"},
        {"to nowhere", {.status = 302}, 302, "unexpected answer"},
    };
    for (const HostileCase &hostile : cases) {
        SCOPED_TRACE(hostile.name);
        const QUrl url = server.url(u'/' + QString::fromLatin1(hostile.name));
        server.answer(url.path(QUrl::FullyEncoded).toLatin1(), hostile.answer);
        const FetchResult result = fetch(get(url));
        ASSERT_FALSE(result) << result->left(100).constData();
        EXPECT_EQ(result.error().status == 301 ? 302 : result.error().status,
                  hostile.status == 301 ? 302 : hostile.status);
        EXPECT_TRUE(result.error().description.contains(QLatin1String(hostile.words)))
            << qPrintable(result.error().description);
    }
}

TEST_F(QtHttpTest, TakesUnusualButSoundAnswers)
{
    const QByteArray text = QByteArray("many words ").repeated(20'000);
    const QList<std::pair<const char *, Answer>> cases{
        {"chunked", {.body = text, .chunked = true}},
        {"until the end", {.raw = "HTTP/1.0 200 OK\r\n\r\n" + text, .close = true}},
        {"packed", {.body = deflated(text), .headers = {{"Content-Encoding", "deflate"}}}},
        {"packed chunks",
         {.body = deflated(text), .headers = {{"Content-Encoding", "deflate"}}, .chunked = true}},
        {"more than it said",
         {.body = text + "HTTP/1.1 200 OK\r\n\r\nforged",
          .headers = {{"Content-Length", QByteArray::number(text.size())}}}},
        {"after that", {.body = text}},
        {"closing", {.body = text, .close = true}},
        {"moved", LoopbackServer::redirect("chunked", 308)},
        {"moved elsewhere",
         LoopbackServer::redirect(server.url(QStringLiteral("/packed")).toEncoded())},
    };
    for (const auto &[name, answer] : cases) {
        SCOPED_TRACE(name);
        const QUrl url = server.url(u'/' + QString::fromLatin1(name));
        server.answer(url.path(QUrl::FullyEncoded).toLatin1(), answer);
        const FetchResult result = fetch(get(url));
        ASSERT_TRUE(result) << qPrintable(result.error().description);
        EXPECT_EQ(result->size(), text.size());
        EXPECT_EQ(*result, text);
    }
}

TEST_F(QtHttpTest, FollowsFiveRedirectsAndNoMore)
{
    for (int i = 0; i < 6; ++i)
        server.answer("/" + QByteArray::number(i),
                      LoopbackServer::redirect(QByteArray::number(i + 1)));
    server.answer("/6", {.body = "there"});
    EXPECT_EQ(fetch(get(server.url(QStringLiteral("/1")))).value_or("failed"), "there");
    EXPECT_EQ(fetch(get(server.url(QStringLiteral("/0")))).error().status, 302);
}

TEST_F(QtHttpTest, NeverRepostsToARedirect)
{
    server.answer("/there", {.body = "there"});
    for (const int status : {301, 302, 303, 307, 308}) {
        SCOPED_TRACE(status);
        const QByteArray path = "/" + QByteArray::number(status);
        server.answer(path, LoopbackServer::redirect("/there", status));
        const FetchResult result = fetch(post(server.url(QString::fromLatin1(path)), "a=b"));
        EXPECT_EQ(result.has_value(), status <= 303);
        const auto &last = server.requests().last();
        EXPECT_EQ(last.method, status <= 303 ? "GET" : "POST");
        EXPECT_EQ(last.path, status <= 303 ? "/there" : path);
        EXPECT_EQ(last.header("Content-Type").isEmpty(), status <= 303);
    }
    EXPECT_EQ(server.requests().size(), 8);
}

TEST_F(QtHttpTest, PostsOnceWhateverTheConnectionDoes)
{
    const QList<std::pair<const char *, Answer>> deaths{
        {"closed before the answer", {.raw = "", .close = true}},
        {"cut in the status line", {.body = "x", .cutAfter = 5}},
        {"cut in the head", {.body = "x", .cutAfter = 30}},
        {"cut in the body", {.body = "xxxx", .headers = {{"Content-Length", "10"}}, .close = true}},
    };
    for (const auto &[name, answer] : deaths) {
        for (const QByteArray &body :
             {QByteArray(), QByteArray("a=b"), QByteArray(3'000'000, 'b')}) {
            SCOPED_TRACE(name);
            SCOPED_TRACE(body.size());
            const QUrl warm = server.url(QStringLiteral("/warm/%1").arg(QLatin1String(name)));
            server.answer(warm.path(QUrl::FullyEncoded).toLatin1(), {.body = "warm"});
            ASSERT_TRUE(fetch(get(warm)));
            ASSERT_TRUE(fetch(post(warm, body)));
            const QUrl url = server.url(u'/' + QString::fromLatin1(name));
            server.answer(url.path(QUrl::FullyEncoded).toLatin1(), answer);
            const qsizetype before = server.requests().size();
            EXPECT_FALSE(fetch(post(url, body)));
            EXPECT_EQ(server.requests().size(), before + 1);
            EXPECT_EQ(server.requests().last().body, body);
        }
    }
}

TEST_F(QtHttpTest, SurvivesConnectionsThatDieWhileIdle)
{
    server.answer("/", {.body = "ok"});
    ASSERT_TRUE(fetch(get(server.url())));
    ASSERT_TRUE(fetch(post(server.url(), "a=b")));
    server.closeConnections();
    EXPECT_TRUE(fetch(post(server.url(), "a=b")));
    EXPECT_TRUE(fetch(get(server.url())));
    EXPECT_EQ(server.requests().size(), 4);
}

TEST_F(QtHttpTest, GivesUpAfterItsTimes)
{
    server.answer("/hang", {.hang = true});
    server.answer("/half", {.body = "half", .headers = {{"Content-Length", "10"}}});
    server.answer("/turn", LoopbackServer::redirect("/hang"));
    for (const char *path : {"/hang", "/half", "/turn"}) {
        for (const bool total : {false, true}) {
            SCOPED_TRACE(path);
            SCOPED_TRACE(total);
            HttpRequest request = get(server.url(QString::fromLatin1(path)));
            (total ? request.totalTimeout : request.idleTimeout) = 0.2;
            const FetchResult result = fetch(request);
            ASSERT_FALSE(result);
            EXPECT_TRUE(result.error().description.contains(QLatin1String("too long")))
                << qPrintable(result.error().description);
        }
    }
}

TEST_F(QtHttpTest, TotalDeadlineEndsAnAnswerThatDripsOn)
{
    server.answer("/", {.body = QByteArray(1'000'000, 'x'), .drip = 100});
    HttpRequest request = get(server.url());
    request.totalTimeout = 0.3;
    bool failed = false;
    HttpHandlers handlers;
    handlers.onData = [&](const QByteArray &) { server.drip(); };
    handlers.onFailed = [&](const HttpError &) { failed = true; };
    const HttpCallHandle call = http.start(request, handlers);
    MORAVEL_WAIT(failed);
}

TEST_F(QtHttpTest, CancelledCallsStaySilent)
{
    enum When { AtOnce, InResponse, InData, InFinished, InFailed };

    server.answer("/ok", {.body = QByteArray(600'000, 'x')});
    server.answer("/bad", {.status = 500});
    for (const When when : {AtOnce, InResponse, InData, InFinished, InFailed}) {
        SCOPED_TRACE(when);
        HttpCallHandle call;
        QList<When> events;
        const auto note = [&](When event) {
            events += event;
            if (event == when)
                call.reset();
        };
        HttpHandlers handlers;
        handlers.onResponse = [&](const HttpResponse &) { note(InResponse); };
        handlers.onData = [&](const QByteArray &) { note(InData); };
        handlers.onFinished = [&] { note(InFinished); };
        handlers.onFailed = [&](const HttpError &) { note(InFailed); };
        const QString path = when == InFailed ? QStringLiteral("/bad") : QStringLiteral("/ok");
        call = http.start(get(server.url(path)), handlers);
        if (when == AtOnce)
            call.reset();
        MORAVEL_WAIT(!call);
        fetch(
            get(server.url(QStringLiteral("/bad")))); // time for anything that still wanted to come
        EXPECT_EQ(events.isEmpty() ? AtOnce : events.last(), when);
    }
}

TEST_F(QtHttpTest, DestroyedClientStaysSilent)
{
    server.answer("/hang", {.hang = true});
    auto client = std::make_unique<QtHttp>();
    HttpHandlers handlers;
    handlers.onFailed = [](const HttpError &) { FAIL(); };
    const HttpCallHandle call = client->start(get(server.url(QStringLiteral("/hang"))), handlers);
    client->fetch(get(server.url(QStringLiteral("/hang"))), [](const FetchResult &) { FAIL(); });
    MORAVEL_WAIT(server.requests().size() == 2);
    client->fetch(get(QUrl()), [](const FetchResult &) { FAIL(); });
    client.reset();
    MORAVEL_WAIT(server.openConnections() == 0);
}

TEST_F(QtHttpTest, FailsWhenNobodyAnswers)
{
    QTcpServer closed;
    ASSERT_TRUE(closed.listen(QHostAddress::LocalHost));
    const quint16 port = closed.serverPort();
    closed.close();
    const FetchResult result = fetch(get(QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(port))));
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().status, 0);
    EXPECT_TRUE(result.error().description.contains(QLatin1String("could not be reached")));
}

} // namespace
