// SPDX-License-Identifier: MIT
#include "support/LoopbackServer.h"

#include <QHostAddress>
#include <QTcpSocket>

#include <optional>

namespace moravel::testing {

namespace {

/// Takes one complete request off the front of @p bytes.
std::optional<LoopbackServer::Request> takeRequest(QByteArray &bytes)
{
    const qsizetype end = bytes.indexOf("\r\n\r\n");
    if (end < 0)
        return std::nullopt;
    QList<QByteArray> lines = bytes.left(end).split('\n');
    const QList<QByteArray> first = lines.takeFirst().trimmed().split(' ');
    LoopbackServer::Request request{.method = first.value(0), .path = first.value(1)};
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

QByteArray answerBytes(const LoopbackServer::Answer &answer)
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

} // namespace

QByteArray LoopbackServer::Request::header(const QByteArray &name) const
{
    for (const auto &[key, value] : headers) {
        if (key.toLower() == name.toLower())
            return value;
    }
    return {};
}

LoopbackServer::LoopbackServer()
{
    QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] { accept(); });
    if (!m_server.listen(QHostAddress::LocalHost))
        qFatal("cannot listen on loopback: %ls", qUtf16Printable(m_server.errorString()));
}

LoopbackServer::~LoopbackServer()
{
    for (QTcpSocket *socket : m_sockets.keys())
        socket->disconnect();
}

QUrl LoopbackServer::url(const QString &path) const
{
    return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(m_server.serverPort()).arg(path));
}

void LoopbackServer::answer(const QByteArray &path, const Answer &answer)
{
    m_answers[path].append(answer);
}

LoopbackServer::Answer LoopbackServer::redirect(const QByteArray &target, int status)
{
    return {.status = status, .headers = {{"Location", target}}};
}

void LoopbackServer::accept()
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

void LoopbackServer::read(QTcpSocket *socket, int connection)
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

void LoopbackServer::send(QTcpSocket *socket, const Answer &answer)
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

void LoopbackServer::drip()
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

void LoopbackServer::closeConnections()
{
    for (QTcpSocket *socket : m_sockets.keys())
        socket->disconnectFromHost();
}

} // namespace moravel::testing
