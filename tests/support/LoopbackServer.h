// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QPointer>
#include <QTcpServer>
#include <QUrl>

#include <utility>

class QTcpSocket;

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
        QByteArray header(const QByteArray &name) const;
    };

    LoopbackServer();
    ~LoopbackServer();

    QUrl url(const QString &path = QStringLiteral("/")) const;

    /// Scripts an answer for requests of @p path (with the query). Several answers for a path are
    /// given in turn; the last one stays.
    void answer(const QByteArray &path, const Answer &answer);

    /// A redirect to @p target.
    static Answer redirect(const QByteArray &target, int status = 302);

    /// Lets every dripping answer go on by its next bytes.
    void drip();

    /// Closes every connection from the server's side.
    void closeConnections();

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

    void accept();
    void read(QTcpSocket *socket, int connection);
    void send(QTcpSocket *socket, const Answer &answer);

    QTcpServer m_server;
    QHash<QByteArray, QList<Answer>> m_answers;
    QHash<QTcpSocket *, QByteArray> m_sockets; ///< With the bytes of a request still incomplete.
    QList<Dripping> m_dripping;
    QList<Request> m_requests;
    int m_connections = 0;
};

} // namespace moravel::testing
