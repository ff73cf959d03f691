// SPDX-License-Identifier: MIT
// What the client makes of sound, broken and hostile answers.
#include "HttpFixture.h"

#include <random>

using Answer = LoopbackServer::Answer;

namespace {

class QtHttpAnswersTest : public HttpFixture
{ };

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

struct HostileCase
{
    const char *name;
    const char *words;
    Answer answer;
    int status = 0;
};

TEST_F(QtHttpAnswersTest, FailsOnHostileAnswers)
{
    const QByteArray text(1000, 'x');
    const LoopbackServer::Headers isPacked{{"Content-Encoding", "deflate"}};
    const QByteArray packed = deflated(noise(100'000));
    const char *lost = "connection was lost";
    const char *odd = "not be understood";
    const char *large = "larger than";
    const char *forbidden = "forbidden address";
    const char *unexpected = "unexpected answer";
    const QByteArray endlessPacked =
        "HTTP/1.0 200 OK\r\nContent-Encoding: gzip\r\n\r\n" + packed.left(50'000);
    constexpr qint64 wholeChunk = 53 + 5 + 1000 + 2; // the head, the length, the text, a line end
    const QByteArray tens(50'000'000, 'x');
    const auto withHeader = [&text](const char *name, const char *value, int status = 200) {
        return Answer{.status = status, .body = text, .headers = {{name, value}}, .close = true};
    };
    const QList<HostileCase> cases{
        {"garbage", lost, {.raw = QByteArray("\0\1\2\3garbage\n\n\n", 14), .close = true}},
        {"garbage, kept open", lost, {.raw = QByteArray(100'000, '\xEE')}},
        {"a mail server", lost, {.raw = "220 mail ESMTP\r\n", .close = true}},
        {"nothing", lost, {.raw = "", .close = true}},
        {"half a status line", lost, {.body = text, .cutAfter = 7}},
        {"half a head", lost, {.body = text, .cutAfter = 30}},
        {"cut in the body", lost, {.body = text, .cutAfter = 500}},
        {"cut after the head", lost, {.headers = {{"Content-Length", "10"}}, .close = true}},
        {"cut in a chunk", lost, {.body = text, .chunked = true, .cutAfter = 500}},
        {"no closing chunk", lost, {.body = text, .chunked = true, .cutAfter = wholeChunk}},
        {"cut while packed", lost, {.body = packed, .headers = isPacked, .cutAfter = 50'000}},
        {"packed, ends early", lost, {.body = packed.left(50'000), .headers = isPacked}},
        {"packed, never ends", lost, {.raw = endlessPacked, .close = true}},
        {"not packed at all", odd, {.body = "\x78\xDA" + text, .headers = isPacked}},
        {"junk after the packed", odd, {.body = packed + "junk", .headers = isPacked}},
        {"packed unknown", odd, withHeader("Content-Encoding", "snappy")},
        {"length is a word", odd, withHeader("Content-Length", "ten")},
        {"length below zero", odd, withHeader("Content-Length", "-7")},
        {"announces too much", large, withHeader("Content-Length", "4194305")},
        {"announces the moon", large, withHeader("Content-Length", "999999999999999999")},
        {"50 MB in a line", large, {.raw = "HTTP/1.1 200 OK\r\n\r\n" + tens}},
        {"50 MB in a chunk", large, {.body = tens, .chunked = true}},
        {"bomb", large, {.body = deflated(QByteArray(200'000'000, 'x')), .headers = isPacked}},
        {"500", "500 (internal error)", {.status = 500, .body = "secret"}, 500},
        {"404", "404 (not found)", {.status = 404}, 404},
        {"401", "login", withHeader("WWW-Authenticate", "Basic realm=\"x\"", 401), 401},
        {"407", "407", withHeader("Proxy-Authenticate", "Basic realm=\"x\"", 407), 407},
        {"to a file", forbidden, LoopbackServer::redirect("file:///etc/passwd"), 302},
        {"to data", forbidden, LoopbackServer::redirect("data:text/plain,hello"), 302},
        {"to ftp", forbidden, LoopbackServer::redirect("ftp://127.0.0.1/"), 302},
        {"to a resource", forbidden, LoopbackServer::redirect("qrc:/moravel/blank.png"), 302},
        {"in a circle", unexpected, LoopbackServer::redirect("/in a circle"), 302},
        {"to nowhere", unexpected, {.status = 302}, 302},
    };
    for (const HostileCase &hostile : cases) {
        SCOPED_TRACE(hostile.name);
        const FetchResult result = fetchScripted(hostile.name, hostile.answer);
        ASSERT_FALSE(result) << result->left(100).constData();
        EXPECT_EQ(result.error().status, hostile.status);
        EXPECT_TRUE(result.error().description.contains(QLatin1String(hostile.words)))
            << qPrintable(result.error().description);
    }
}

TEST_F(QtHttpAnswersTest, TakesUnusualButSoundAnswers)
{
    const QByteArray text = QByteArray("many words ").repeated(20'000);
    const QList<std::pair<const char *, Answer>> cases{
        {"chunked", {.body = text, .chunked = true}},
        {"until the end", {.raw = "HTTP/1.0 200 OK\r\n\r\n" + text, .close = true}},
        {"packed", {.body = deflated(text), .headers = {{"Content-Encoding", "deflate"}}}},
        {"packed chunks",
         {.body = deflated(text), .headers = {{"Content-Encoding", "deflate"}}, .chunked = true}},
        {"packed twice",
         {.body = deflated(text.left(1000)) + deflated(text.mid(1000)),
          .headers = {{"Content-Encoding", "gzip"}}}},
        {"more than it said",
         {.body = text + "HTTP/1.1 200 OK\r\n\r\nforged",
          .headers = {{"Content-Length", QByteArray::number(text.size())}}}},
        {"after that", {.body = text}},
        {"closing", {.body = text, .close = true}},
        {"moved", LoopbackServer::redirect("chunked", 308)},
        {"moved elsewhere", LoopbackServer::redirect(server.url(u"/packed"_s).toEncoded())},
    };
    for (const auto &[name, answer] : cases) {
        SCOPED_TRACE(name);
        const FetchResult result = fetchScripted(name, answer);
        ASSERT_TRUE(result) << qPrintable(result.error().description);
        EXPECT_EQ(result->size(), text.size());
        EXPECT_EQ(*result, text);
    }
}

} // namespace
