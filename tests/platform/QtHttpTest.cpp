// SPDX-License-Identifier: MIT
#include "HttpFixture.h"

#include <QTcpServer>

using Answer = LoopbackServer::Answer;

namespace {

class QtHttpTest : public HttpFixture
{ };

TEST_F(QtHttpTest, DeliversAnAnswerInParts)
{
    const QByteArray body(1'000'000, 'x');
    server.answer("/pic", {.body = body, .headers = {{"Content-Type", "image/jpeg"}}});
    QStringList events;
    QByteArray received;
    HttpHandlers handlers;
    handlers.onResponse = [&](const HttpResponse &response) {
        events += u"response"_s;
        EXPECT_EQ(response.status, 200);
        EXPECT_EQ(response.expectedLength, body.size());
        EXPECT_EQ(response.contentType, "image/jpeg");
    };
    handlers.onData = [&](const QByteArray &block) {
        received += block;
        EXPECT_LE(block.size(), 256 * 1024);
    };
    handlers.onFinished = [&] { events += u"finished"_s; };
    handlers.onFailed = [&](const HttpError &error) { events += error.description; };
    const HttpCallHandle call = http.start(get(server.url(u"/pic"_s)), handlers);
    ASSERT_TRUE(call);
    EXPECT_TRUE(events.isEmpty());
    MORAVEL_WAIT(events.size() == 2);
    EXPECT_EQ(events.join(u' '), u"response finished"_s);
    EXPECT_EQ(received, body);
}

TEST_F(QtHttpTest, SendsWhatItWasGivenAndNoMore)
{
    server.answer("/", {.body = "ok", .headers = {{"Set-Cookie", "a=b"}}});
    HttpRequest request = get(server.url());
    request.url.setUserInfo(u"me:secret"_s);
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
                                      get(QUrl(u"file:///etc/passwd"_s)),
                                      get(QUrl(u"ftp://127.0.0.1/x"_s)),
                                      get(QUrl(u"data:text/plain,x"_s)),
                                      get(QUrl(u"qrc:/x"_s)),
                                      get(QUrl(u"http:///x"_s)),
                                      get(QUrl(u"relative"_s)),
                                      split,
                                      method};
    for (const HttpRequest &request : requests) {
        SCOPED_TRACE(request.url.toEncoded().constData());
        EXPECT_FALSE(http.start(request, {}));
        EXPECT_FALSE(fetch(request));
    }
    EXPECT_EQ(server.connectionCount(), 0);
}

TEST_F(QtHttpTest, FollowsFiveRedirectsAndNoMore)
{
    for (int i = 0; i < 6; ++i)
        server.answer("/" + QByteArray::number(i),
                      LoopbackServer::redirect(QByteArray::number(i + 1)));
    server.answer("/6", {.body = "there"});
    EXPECT_EQ(fetch(get(server.url(u"/1"_s))).value_or("failed"), "there");
    EXPECT_EQ(fetch(get(server.url(u"/0"_s))).error().status, 302);
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
    server.answer("/", {.body = "warm"});
    for (const auto &[name, answer] : deaths) {
        for (const QByteArray &body :
             {QByteArray(), QByteArray("a=b"), QByteArray(3'000'000, 'b')}) {
            SCOPED_TRACE(name);
            SCOPED_TRACE(body.size());
            ASSERT_TRUE(fetch(get(server.url())));
            ASSERT_TRUE(fetch(post(server.url(), body)));
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
            EXPECT_TRUE(result.error().description.contains("too long"_L1))
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
        const QString path = when == InFailed ? u"/bad"_s : u"/ok"_s;
        call = http.start(get(server.url(path)), handlers);
        if (when == AtOnce)
            call.reset();
        MORAVEL_WAIT(!call);
        fetch(get(server.url(u"/bad"_s))); // time for anything that still wanted to come
        EXPECT_EQ(events.isEmpty() ? AtOnce : events.last(), when);
    }
}

TEST_F(QtHttpTest, DestroyedClientStaysSilent)
{
    server.answer("/hang", {.hang = true});
    auto client = std::make_unique<QtHttp>();
    HttpHandlers handlers;
    handlers.onFailed = [](const HttpError &) { FAIL(); };
    const HttpCallHandle call = client->start(get(server.url(u"/hang"_s)), handlers);
    client->fetch(get(server.url(u"/hang"_s)), [](const FetchResult &) { FAIL(); });
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
    const FetchResult result = fetch(get(QUrl(u"http://127.0.0.1:%1/"_s.arg(port))));
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().status, 0);
    EXPECT_TRUE(result.error().description.contains("could not be reached"_L1));
}

} // namespace
