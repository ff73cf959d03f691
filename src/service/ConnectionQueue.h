// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Http.h"
#include "platform/MainLoop.h"
#include "service/Connector.h"
#include "service/ServicePorts.h"
#include "service/Then.h"

#include <QHash>

#include <deque>

namespace moravel {

/// Where and what a queued address is posted to: the query becomes the body.
struct FormPost
{
    QString target;
    QByteArray body;
};

/// Splits a queued address. Every occurrence of the query leaves the target, and then its last character
/// (the "?"); what ASCII cannot hold is sent as "?".
FormPost formPost(const QString &url);

/// Cleans a whole answer: strict UTF-8 (else empty), trimmed, "\%" turned into "%".
QString cleanedAnswer(const QByteArray &bytes);

/// The requests for picture data, sent one at a time, in order, as form POSTs. An answer goes to the
/// operation named in its record, whose cell is then processThumb().
class ConnectionQueue
{
public:
    /// Gets the cleaned answer (empty after a failure) and says when it is dealt with.
    using ProcessMethod = std::function<void(const QString &answer, const Then &then)>;

    /// Seconds between an answer and the next request.
    static constexpr double Spacing = 0.5;

    ConnectionQueue(HttpClient &http, MainLoop &loop, const ServicePorts &ports);

    /// Enters the operation that answers with @p name are handed to.
    void setProcessMethod(const QString &name, const ProcessMethod &method);

    void addConnectionToQueue(const QString &url, ThumbView &cell, const QString &method);
    void checkConnectionQueue();

    bool isEmpty() const { return m_queue.empty(); }

    /// True while a request is in flight or a thumbnail is being fetched.
    bool isConnecting() const { return m_inFlight || m_thumbFetches > 0; }

    bool connectionFailed() const { return m_connectionFailed; }

    void clearConnectionFailed() { m_connectionFailed = false; }

    /// Keeps requests back while a thumbnail is fetched; calls are counted.
    void beginThumbFetch() { ++m_thumbFetches; }

    void endThumbFetch() { --m_thumbFetches; }

    /// Returns the cell of the answer being processed and forgets it.
    ThumbView *takeProcessThumb();

private:
    HttpHandlers handlers();
    void connectionDidFinishLoading();
    void connectionDidFailWithError(const HttpError &error);
    void process(const Connector &head, const QString &answer, const Then &then);
    void end();
    void scheduleCheck();

    HttpClient &m_http;
    MainLoop &m_loop;
    const ServicePorts &m_ports;
    QHash<QString, ProcessMethod> m_processMethods;
    std::deque<Connector> m_queue;
    HttpCallHandle m_call;
    DelayedCallHandle m_check; ///< The one check to come; an answer starts its half second anew.
    QByteArray m_receivedData;
    QPointer<ThumbView> m_processThumb;
    int m_thumbFetches = 0;
    bool m_inFlight = false;
    bool m_connectionFailed = false;
};

} // namespace moravel
