// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Http.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>

class QNetworkAccessManager;
class QNetworkReply;

namespace moravel {

class Inflater;

/// One request with its redirects, from sending to the last callback; deletes itself after that.
///
/// Reads at most one block a turn of the event loop, so that a fast or an exploding answer neither
/// stalls the window nor fills the memory.
class HttpExchange : public QObject
{
public:
    /// Sends @p request, which must be sendable. @p shared keeps its connections; @p fresh sends
    /// what must not be repeated, on a new connection each.
    HttpExchange(QNetworkAccessManager &shared, HttpRequest request, HttpHandlers handlers,
                 QObject *parent);
    ~HttpExchange() override;

    /// Ends the request without a further callback.
    void cancel();

private:
    void send();
    void head();
    void follow(int status);
    void read();
    void readBlock(bool finished);
    void readLater();
    void end();
    void fail(const HttpError &error);
    void dropReply();
    bool isComplete() const;

    QNetworkAccessManager &m_shared;
    std::unique_ptr<QNetworkAccessManager> m_own; ///< Sends what must not be repeated.
    HttpRequest m_request;
    HttpHandlers m_handlers;
    QPointer<QNetworkReply> m_reply;
    QTimer m_deadline;
    int m_redirects = 0;
    int m_status = 0; ///< 0 until the head of the answer is there.
    qint64 m_packedLength = -1; ///< Bytes that the server announced; -1 for none.
    qint64 m_packedReceived = 0;
    qint64 m_received = 0; ///< Bytes after unpacking.
    std::unique_ptr<Inflater> m_inflater; ///< Null for an answer that is not packed.
    bool m_reading = false; ///< A read() is posted.
    bool m_over = false;
};

} // namespace moravel
