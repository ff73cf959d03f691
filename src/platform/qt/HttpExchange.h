// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Http.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

class QNetworkAccessManager;
class QNetworkReply;

namespace moravel {

/// One request with its redirects, from sending to the last callback; deletes itself after that.
///
/// Reads at most one block a turn of the event loop, so that a fast or an exploding answer neither
/// stalls the window nor fills the memory.
class HttpExchange : public QObject
{
public:
    /// Sends @p request, which must be sendable. @p shared keeps its connections; @p fresh sends
    /// what must not be repeated, on a new connection each.
    HttpExchange(QNetworkAccessManager &shared, QNetworkAccessManager &fresh, HttpRequest request,
                 HttpHandlers handlers, QObject *parent);
    ~HttpExchange() override;

    /// Ends the request without a further callback.
    void cancel();

private:
    void send();
    void head();
    void follow(int status);
    void read();
    void readLater();
    void end();
    void fail(const HttpError &error);
    void dropReply();
    bool isComplete() const;

    QNetworkAccessManager &m_shared;
    QNetworkAccessManager &m_fresh;
    HttpRequest m_request;
    HttpHandlers m_handlers;
    QPointer<QNetworkReply> m_reply;
    QTimer m_deadline;
    int m_redirects = 0;
    int m_status = 0; ///< 0 until the head of the answer is there.
    qint64 m_expected = -1;
    qint64 m_received = 0;
    bool m_reading = false; ///< A read() is posted.
    bool m_over = false;
};

} // namespace moravel
