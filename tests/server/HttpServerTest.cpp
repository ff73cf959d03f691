// SPDX-License-Identifier: MIT
// The transport over real connections on loopback.
#include "server/http/HttpServer.h"

#include "server/core/Lane.h"
#include "support/TempHome.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <latch>
#include <poll.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace moravel::server {

namespace {

/// A client that sends bytes as they are.
class Client
{
public:
    explicit Client(int port) : m_socket(::socket(AF_INET, SOCK_STREAM, 0))
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<uint16_t>(port));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        EXPECT_EQ(::connect(m_socket, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
    }

    ~Client() { ::close(m_socket); }

    Client(const Client &) = delete;
    Client &operator=(const Client &) = delete;

    /// Stops silently where the server has hung up.
    void send(const QByteArray &bytes) const
    {
        for (qsizetype sent = 0; sent < bytes.size();) {
            const ssize_t count = ::send(m_socket, bytes.constData() + sent,
                                         static_cast<size_t>(bytes.size() - sent), MSG_NOSIGNAL);
            if (count <= 0)
                return;
            sent += count;
        }
    }

    /// All until the server closes.
    QByteArray rest() const
    {
        QByteArray all;
        char buffer[65536];
        for (ssize_t count; (count = ::recv(m_socket, buffer, sizeof buffer, 0)) > 0;)
            all.append(buffer, count);
        return all;
    }

    /// One answer whose body ends with @p end, on a connection that stays open.
    QByteArray until(const QByteArray &end) const
    {
        QByteArray all;
        char byte = 0;
        while (!all.endsWith(end) && ::recv(m_socket, &byte, 1, 0) == 1)
            all.append(byte);
        return all;
    }

    /// Takes so many bytes without looking at them.
    void drop(qsizetype bytes) const
    {
        char buffer[65536];
        for (ssize_t count = 1; bytes > 0 && count > 0; bytes -= count)
            count = ::recv(m_socket, buffer,
                           std::min<size_t>(sizeof buffer, static_cast<size_t>(bytes)), 0);
    }

    /// A byte from time to time, each well before the server's patience with silence ends.
    void dripUntilClosed() const
    {
        constexpr int pauseMs = 20;
        pollfd closing{m_socket, POLLIN, 0};
        while (::poll(&closing, 1, pauseMs) == 0)
            send("x");
    }

private:
    const int m_socket;
};

using Handler = std::function<Response(const Request &)>;

/// A server that echoes the request, with short patience.
struct Running
{
    testing::TempHome home;
    HttpServer server;
    int port = 0;
    std::thread thread;

    Lane lane{2, 1000};

    explicit Running(Handler handler = {},
                     ConnectionLimits limits = {.readMs = 150, .requestMs = 400})
        : server(
            [this, handler](const Request &request, const Answer &answer) {
                if (!handler)
                    return answer(echo(request));
                lane.post([=] { answer(handler(request)); });
            },
            limits)
    {
        port = server.bind(QStringLiteral("127.0.0.1"), 0).value();
        thread = std::thread([this] { EXPECT_TRUE(server.run()); });
    }

    ~Running()
    {
        server.stop();
        thread.join();
    }

    Response echo(const Request &request) const
    {
        Response response;
        response.content.type = "text/plain";
        if (request.target == "/file") {
            auto file = std::make_shared<QFile>(
                home.write(QStringLiteral("f"), QByteArray(1'000'000, 'f')));
            EXPECT_TRUE(file->open(QIODevice::ReadOnly));
            response.content.file = file;
        } else if (request.target == "/304") {
            response = {304, {}, {{"ETag", "\"x\""}}};
        } else if (request.target == "/throw") {
            throw std::runtime_error("x");
        } else {
            response.content.bytes = request.method + ' ' + request.target + ' ' + request.host
                + ' ' + request.body + '.';
        }
        return response;
    }

    QByteArray answer(const QByteArray &bytes) const
    {
        const Client client(port);
        client.send(bytes);
        return client.rest();
    }
};

QByteArray post(qsizetype length, const QByteArray &body, const QByteArray &more = {})
{
    return "POST /p HTTP/1.1\r\nHost: h\r\nConnection: close\r\n" + more
        + "Content-Length: " + QByteArray::number(length) + "\r\n\r\n" + body;
}

QByteArray get(const QByteArray &target, const QByteArray &more = "Connection: close\r\n")
{
    return "GET " + target + " HTTP/1.1\r\nHost: h\r\n" + more + "\r\n";
}

} // namespace

TEST(HttpServer, KeepsConnectionsAliveAndTakesPipelinedRequests)
{
    const Running running;
    const Client client(running.port);
    for (int i = 0; i < 20; ++i) {
        client.send("POST /a%2Fb?c HTTP/1.1\r\nHost: h\r\nContent-Length: 5\r\n\r\na=%2F");
        EXPECT_TRUE(client.until("%2F.").endsWith("\r\n\r\nPOST /a%2Fb?c h a=%2F."));
    }
    client.send(get("/1", {}) + get("/2"));
    const QByteArray both = client.rest();
    EXPECT_TRUE(both.contains("GET /1 h ."));
    EXPECT_TRUE(both.endsWith("GET /2 h ."));
}

TEST(HttpServer, SendsFilesHeadsAndUnmodifiedAnswersRight)
{
    const Running running;
    const QByteArray file = running.answer(get("/file"));
    EXPECT_TRUE(file.contains("Content-Length: 1000000\r\n"));
    EXPECT_TRUE(file.endsWith("\r\n\r\n" + QByteArray(1'000'000, 'f')));
    const QByteArray head =
        running.answer("HEAD /file HTTP/1.1\r\nHost: h\r\nConnection: close\r\n\r\n");
    EXPECT_TRUE(head.contains("Content-Length: 1000000\r\n"));
    EXPECT_TRUE(head.endsWith("\r\n\r\n"));
    const QByteArray unmodified = running.answer(get("/304"));
    EXPECT_TRUE(unmodified.startsWith("HTTP/1.1 304 "));
    EXPECT_FALSE(unmodified.contains("Content-Length"));
    // Ranges would multiply what is sent.
    EXPECT_TRUE(running.answer(get("/x", "Range: bytes=0-1,0-1\r\nConnection: close\r\n"))
                    .endsWith("GET /x h ."));
}

TEST(HttpServer, RefusesWhatItWillNotRead)
{
    const Running running;

    const struct
    {
        const char *what;
        QByteArray bytes;
        QByteArray status;
    } cases[] = {
        {"just long enough", post(8000, QByteArray(8000, 'x')), "200"},
        {"too long", post(65537, QByteArray(65537, 'x')), "413"},
        {"much too long", post(1'000'000'000, QByteArray(300'000, 'x')), "413"},
        {"two lengths", post(1, "x", "Content-Length: 2\r\n"), "400"},
        {"no number", "POST /p HTTP/1.1\r\nContent-Length: x\r\n\r\nx", "400"},
        {"negative", post(-1, "x"), "400"},
        {"no length", "POST /p HTTP/1.1\r\n\r\n", "411"},
        {"chunked", "POST /p HTTP/1.1\r\nTransfer-Encoding: chunked\r\n\r\n1\r\nx\r\n0\r\n\r\n",
         "411"},
        {"compressed", post(1, "x", "Content-Encoding: gzip\r\n"), "415"},
        {"body on GET", get("/", "Content-Length: 1\r\n") + "x", "400"},
        {"long address", get("/" + QByteArray(3000, 'x')), "414"},
        {"longer address", get("/" + QByteArray(9000, 'x')), "414"},
        {"whole address", get("http://h/"), "400"},
        {"handler throws", get("/throw"), "500"},
        {"garbage", QByteArray("\x16\x03\x01\x02\x00\x01\x00\xff garbage\r\n\r\n", 20), "400"},
        {"long header", get("/", "A: " + QByteArray(9000, 'x') + "\r\n"), "400"},
        {"endless headers", "GET / HTTP/1.1\r\n" + QByteArray("A: b\r\n").repeated(30'000), "400"},
        {"short body", post(50, "x"), "408"},
    };

    for (const auto &[what, bytes, status] : cases) {
        SCOPED_TRACE(what);
        const QByteArray answer = running.answer(bytes);
        EXPECT_EQ(answer.mid(9, 3).toStdString(), status.toStdString())
            << answer.left(200).toStdString();
        EXPECT_FALSE(answer.endsWith("\r\n\r\n")); // It always says something.
    }
}

TEST(HttpServer, SurvivesRandomBytes)
{
    const Running running;
    quint32 state = 12345;
    const auto next = [&] { return state = state * 1664525 + 1013904223; };
    const QByteArray seed = post(9, "option=al", "Range: bytes=0-5\r\nExpect: 100-continue\r\n");
    for (int round = 0; round < 60; ++round) {
        QByteArray bytes = seed;
        for (int change = 0; change < 8; ++change)
            bytes[static_cast<qsizetype>(next() >> 8) % bytes.size()] =
                static_cast<char>(next() >> 16);
        const Client client(running.port);
        client.send(bytes + "\r\n\r\n");
    }
    EXPECT_TRUE(running.answer(get("/x")).endsWith("GET /x h ."));
}

TEST(HttpServer, DrippingAndSilentClientsAreDroppedWhileOthersAreServed)
{
    const Running running;
    std::vector<std::unique_ptr<Client>> slow;
    for (int i = 0; i < 1000; ++i) {
        slow.push_back(std::make_unique<Client>(running.port));
        slow.back()->send("GET / HT");
    }
    const Client drip(running.port);
    std::thread dripping([&] { drip.dripUntilClosed(); });
    EXPECT_TRUE(running.answer(get("/x")).endsWith("GET /x h ."));
    for (const auto &client : slow)
        client->rest(); // Returns only because the server hangs up.
    dripping.join();
}

TEST(HttpServer, IdleConnectionsMakeRoomForOthers)
{
    const Running running(
        {}, {.readMs = 2000, .requestMs = 2000, .idleMs = 3'600'000, .connections = 8});
    std::vector<std::unique_ptr<Client>> idle;
    for (int i = 0; i < 40; ++i) {
        idle.push_back(std::make_unique<Client>(running.port));
        idle.back()->send(get("/x", {}));
        EXPECT_TRUE(idle.back()->until("h .").endsWith("GET /x h ."));
    }
}

TEST(HttpServer, WhoNeverStopsAskingLeavesTurnsToOthers)
{
    const Running running;
    std::atomic<bool> stop{false};
    std::vector<std::thread> greedy;
    for (int i = 0; i < 8; ++i) { // More than there are loops.
        greedy.emplace_back([&] {
            constexpr int many = 400;
            const Client client(running.port);
            client.send(get("/x", {}));
            const qsizetype size = client.until("h .").size();
            for (int round = 0; !stop; ++round) {
                client.send(get("/x", {}).repeated(many));
                if (round > 0)
                    client.drop(many * size); // Of the round before: there is always more to do.
            }
        });
    }
    for (int i = 0; i < 20; ++i)
        EXPECT_TRUE(running.answer(get("/y")).endsWith("GET /y h ."));
    stop = true;
    for (std::thread &thread : greedy)
        thread.join();
}

TEST(HttpServer, StopLetsAnswersInProgressFinish)
{
    std::latch started(1);
    std::latch release(1);
    QByteArray answer;
    std::thread asking;
    {
        Running running([&](const Request &) {
            started.count_down();
            release.wait();
            return Response{200, {"done", nullptr, "text/plain", {}}, {}};
        });
        asking = std::thread([&answer, port = running.port] {
            const Client client(port);
            client.send(get("/"));
            answer = client.rest();
        });
        started.wait();
        running.server.stop();
        release.count_down();
    }
    asking.join();
    EXPECT_TRUE(answer.endsWith("done"));
}

TEST(HttpServer, BindSaysWhyItFails)
{
    const Running running;
    HttpServer second([](const Request &, const Answer &) {});
    const auto taken = second.bind(QStringLiteral("127.0.0.1"), running.port);
    ASSERT_FALSE(taken);
    EXPECT_TRUE(taken.error().contains(QLatin1StringView("Address already in use")))
        << taken.error().toStdString();
    EXPECT_FALSE(second.bind(QStringLiteral("192.0.2.1"), 0));
}

} // namespace moravel::server
