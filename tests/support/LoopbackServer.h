// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QHostAddress>
#include <QList>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

#include <optional>
#include <utility>

namespace moravel::testing {

/// A scripted HTTP/1.1 server on 127.0.0.1 and a free port, in the event loop of the test.
///
///     LoopbackServer server;
///     server.answer("/list", {.body = "one\ntwo"});
///     server.answer("/gone", {.status = 404});
///     request.url = server.url(QStringLiteral("/list"));
///
/// A path without a script answers 404. Connections are kept alive as HTTP/1.1 says.
class LoopbackServer
{
public:
    using Headers = QList<std::pair<QByteArray, QByteArray>>;

    /// What to answer to one request.
    struct Answer
    {
        int status = 200;
        QByteArray body{};
        Headers headers{}; ///< Beside Content-Length; a Content-Length here replaces it.
        QByteArray raw{}; ///< Sent instead of status, headers and body.
        bool chunked = false; ///< Sends the body as one chunk instead of with its length.

        qint64 cutAfter = -1; ///< Closes the connection after so many bytes of the whole answer.
        bool close = false; ///< Closes the connection after the answer.
        bool hang = false; ///< Sends nothing, and keeps the connection.
        qint64 drip = 0; ///< Sends so many bytes now, and so many more at each call of drip().
    };

    struct Request
    {
        QByteArray method{};
        QByteArray path{}; ///< With the query.
        Headers headers{};
        QByteArray body{};
        int connection = 0; ///< Number of its connection, from 1.

        /// Value of a header, by name in any case; empty when it is missing.
        QByteArray header(const QByteArray &name) const
        {
            for (const auto &[key, value] : headers) {
                if (key.toLower() == name.toLower())
                    return value;
            }
            return {};
        }
    };

    LoopbackServer()
    {
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] { accept(); });
        if (!m_server.listen(QHostAddress::LocalHost))
            qFatal("cannot listen on loopback: %ls", qUtf16Printable(m_server.errorString()));
    }

    ~LoopbackServer()
    {
        for (QTcpSocket *socket : m_sockets.keys())
            socket->disconnect();
    }

    Q_DISABLE_COPY_MOVE(LoopbackServer)

    QUrl url(const QString &path = QStringLiteral("/")) const
    {
        return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(m_server.serverPort()).arg(path));
    }

    /// Scripts an answer for requests of @p path (with the query). Several answers for a path are
    /// given in turn; the last one stays.
    void answer(const QByteArray &path, const Answer &answer) { m_answers[path].append(answer); }

    /// A redirect to @p target.
    static Answer redirect(const QByteArray &target, int status = 302)
    {
        return {.status = status, .headers = {{"Location", target}}};
    }

    /// Lets every dripping answer go on by its next bytes.
    void drip()
    {
        for (Dripping &dripping : m_dripping) {
            if (!dripping.socket)
                continue;
            dripping.socket->write(dripping.left.left(dripping.step));
            dripping.left.remove(0, dripping.step);
            if (dripping.left.isEmpty() && dripping.close)
                dripping.socket->disconnectFromHost();
        }
        m_dripping.removeIf([](const Dripping &d) { return !d.socket || d.left.isEmpty(); });
    }

    /// Closes every connection from the server's side.
    void closeConnections()
    {
        for (QTcpSocket *socket : m_sockets.keys())
            socket->disconnectFromHost();
    }

    const QList<Request> &requests() const { return m_requests; }

    int connectionCount() const { return m_connections; }

    int openConnections() const { return int(m_sockets.size()); }

private:
    struct Dripping
    {
        QPointer<QTcpSocket> socket;
        QByteArray left;
        qint64 step = 0;
        bool close = false;
    };

    /// Takes one complete request off the front of @p bytes.
    static std::optional<Request> takeRequest(QByteArray &bytes)
    {
        const qsizetype end = bytes.indexOf("\r\n\r\n");
        if (end < 0)
            return std::nullopt;
        QList<QByteArray> lines = bytes.left(end).split('\n');
        const QList<QByteArray> first = lines.takeFirst().trimmed().split(' ');
        Request request{.method = first.value(0), .path = first.value(1)};
        for (const QByteArray &line : lines) {
            const qsizetype colon = line.indexOf(':');
            request.headers.append({line.left(colon).trimmed(), line.mid(colon + 1).trimmed()});
        }
        const qsizetype length = request.header("Content-Length").toLongLong();
        if (bytes.size() < end + 4 + length)
            return std::nullopt;
        request.body = bytes.mid(end + 4, length);
        bytes.remove(0, end + 4 + length);
        return request;
    }

    static QByteArray answerBytes(const Answer &answer)
    {
        if (!answer.raw.isNull())
            return answer.raw;
        QByteArray bytes = "HTTP/1.1 " + QByteArray::number(answer.status) + " Scripted\r\n";
        bool hasLength = answer.chunked;
        for (const auto &[name, value] : answer.headers) {
            bytes += name + ": " + value + "\r\n";
            hasLength = hasLength || name.toLower() == "content-length";
        }
        if (!hasLength)
            bytes += "Content-Length: " + QByteArray::number(answer.body.size()) + "\r\n";
        if (!answer.chunked)
            return bytes + "\r\n" + answer.body;
        bytes += "Transfer-Encoding: chunked\r\n\r\n" + QByteArray::number(answer.body.size(), 16);
        return bytes + "\r\n" + answer.body + "\r\n0\r\n\r\n";
    }

    void accept()
    {
        while (QTcpSocket *socket = m_server.nextPendingConnection()) {
            const int connection = ++m_connections;
            m_sockets.insert(socket, {});
            QObject::connect(socket, &QTcpSocket::readyRead, &m_server,
                             [this, socket, connection] { read(socket, connection); });
            QObject::connect(socket, &QTcpSocket::disconnected, &m_server, [this, socket] {
                m_sockets.remove(socket);
                socket->deleteLater();
            });
        }
    }

    void read(QTcpSocket *socket, int connection)
    {
        m_sockets[socket] += socket->readAll();
        while (m_sockets.contains(socket)) {
            std::optional<Request> request = takeRequest(m_sockets[socket]);
            if (!request)
                return;
            request->connection = connection;
            m_requests.append(*request);
            QList<Answer> &script = m_answers[request->path];
            Answer next{.status = 404};
            if (!script.isEmpty())
                next = script.size() > 1 ? script.takeFirst() : script.first();
            send(socket, next);
        }
    }

    void send(QTcpSocket *socket, const Answer &answer)
    {
        if (answer.hang)
            return;
        QByteArray bytes = answerBytes(answer);
        const bool close = answer.close || answer.cutAfter >= 0;
        if (answer.cutAfter >= 0)
            bytes.truncate(answer.cutAfter);
        if (answer.drip > 0) {
            socket->write(bytes.left(answer.drip));
            m_dripping.append({socket, bytes.mid(answer.drip), answer.drip, close});
            return;
        }
        socket->write(bytes);
        if (close)
            socket->disconnectFromHost();
    }

    QTcpServer m_server;
    QHash<QByteArray, QList<Answer>> m_answers;
    QHash<QTcpSocket *, QByteArray> m_sockets; ///< With the bytes of a request still incomplete.
    QList<Dripping> m_dripping;
    QList<Request> m_requests;
    int m_connections = 0;
};

} // namespace moravel::testing
