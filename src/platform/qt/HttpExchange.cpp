// SPDX-License-Identifier: MIT
#include "platform/qt/HttpExchange.h"

#include "platform/qt/HttpRules.h"
#include "platform/qt/Inflater.h"
#include "platform/qt/Log.h"
#include "platform/qt/OneShotBody.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>

#include <algorithm>
#include <limits>

namespace moravel {

namespace {

constexpr qint64 BlockBytes = 256 * 1024;
constexpr double DefaultIdleSeconds = 60;

int toMs(double seconds)
{
    constexpr double most = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(seconds * 1000, 1.0, most));
}

QNetworkRequest networkRequest(const HttpRequest &request)
{
    QUrl url = request.url;
    url.setUserInfo({}); // no logins
    QNetworkRequest out(url);
    out.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                     QNetworkRequest::ManualRedirectPolicy);
    out.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    out.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    out.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    out.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    out.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    out.setAttribute(QNetworkRequest::HttpPipeliningAllowedAttribute, false);
    out.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    out.setRawHeader("Accept-Encoding", "gzip"); // also keeps the network layer from unpacking
    out.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Moravel/" MORAVEL_VERSION));
    for (const auto &[name, value] : request.headers) {
        if (name.toLower() != "content-length") // the network layer counts the body itself
            out.setRawHeader(name, value);
    }
    const double idle = request.idleTimeout > 0 ? request.idleTimeout : DefaultIdleSeconds;
    out.setTransferTimeout(toMs(idle));
    return out;
}

} // namespace

HttpExchange::HttpExchange(QNetworkAccessManager &shared, HttpRequest request,
                           HttpHandlers handlers, QObject *parent)
    : QObject(parent)
    , m_shared(shared)
    , m_request(std::move(request))
    , m_handlers(std::move(handlers))
{
    m_deadline.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, this, [this] { fail(httprules::timedOut()); });
    if (m_request.totalTimeout > 0)
        m_deadline.start(toMs(m_request.totalTimeout));
    send();
}

HttpExchange::~HttpExchange()
{
    delete m_reply; // before m_own
}

void HttpExchange::cancel()
{
    if (m_over)
        return;
    m_over = true;
    m_deadline.stop();
    dropReply();
    deleteLater(); // not now: a handler may be running
}

void HttpExchange::dropReply()
{
    if (!m_reply)
        return;
    // Deleting ends the connection too. abort() would set an error of its own, and the network layer
    // complains when the true one arrives after it.
    m_reply->disconnect(this);
    m_reply->deleteLater();
    m_reply.clear();
}

void HttpExchange::send()
{
    QNetworkRequest request = networkRequest(m_request);
    if (httprules::isRepeatable(m_request.method)) {
        m_reply = m_shared.sendCustomRequest(request, m_request.method);
    } else {
        // A kept-alive connection may die as the request goes out, and then nobody knows whether it
        // arrived. So it gets a connection of its own, which takes a manager of its own, and a body
        // that goes out once.
        m_own = std::make_unique<QNetworkAccessManager>();
        request.setRawHeader("Connection", "close");
        auto *body = new OneShotBody(m_request.body);
        m_reply = m_own->sendCustomRequest(request, m_request.method, body);
        body->setParent(m_reply);
    }
    m_reply->setReadBufferSize(BlockBytes);
    connect(m_reply, &QNetworkReply::metaDataChanged, this, &HttpExchange::readLater);
    connect(m_reply, &QNetworkReply::readyRead, this, &HttpExchange::readLater);
    connect(m_reply, &QNetworkReply::finished, this, &HttpExchange::readLater);
}

void HttpExchange::head()
{
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (m_over || m_status != 0 || status == 0)
        return;
    if (httprules::isRedirect(status)) {
        follow(status);
        return;
    }
    if (status >= 400) {
        fail(httprules::statusError(status));
        return;
    }
    const QByteArray length = m_reply->rawHeader("Content-Length");
    bool ok = true;
    const qint64 expected = length.isEmpty() ? -1 : length.toLongLong(&ok);
    if (!ok || expected < -1) {
        fail(httprules::notUnderstood());
        return;
    }
    if (expected > m_request.maxBytes) {
        fail(httprules::tooLarge(m_request.maxBytes));
        return;
    }
    const QByteArray encoding = m_reply->rawHeader("Content-Encoding").trimmed().toLower();
    if (encoding == "gzip" || encoding == "x-gzip" || encoding == "deflate") {
        m_inflater = std::make_unique<Inflater>();
    } else if (!encoding.isEmpty() && encoding != "identity") {
        fail(httprules::notUnderstood());
        return;
    }
    m_status = status;
    m_packedLength = expected;
    if (m_handlers.onResponse)
        m_handlers.onResponse(
            {status, m_inflater ? -1 : expected, m_reply->rawHeader("Content-Type")});
}

void HttpExchange::follow(int status)
{
    const QUrl location = m_reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (location.isEmpty() || ++m_redirects > httprules::MostRedirects) {
        fail(httprules::statusError(status));
        return;
    }
    auto next = httprules::redirected(m_request, status, m_request.url.resolved(location));
    if (!next) {
        fail(next.error());
        return;
    }
    dropReply();
    m_request = std::move(*next);
    send();
}

void HttpExchange::readLater()
{
    if (std::exchange(m_reading, true))
        return;
    QMetaObject::invokeMethod(this, &HttpExchange::read, Qt::QueuedConnection);
}

void HttpExchange::read()
{
    m_reading = false;
    if (m_over || !m_reply)
        return;
    if (m_status == 0)
        head();
    if (m_over)
        return;
    const bool finished = m_reply->isFinished(); // of the reply that head() left
    const bool failed = finished && m_reply->error() != QNetworkReply::NoError;
    if (m_status == 0 || failed) {
        if (finished)
            end();
        return;
    }
    readBlock(finished);
}

void HttpExchange::readBlock(bool finished)
{
    QByteArray block;
    const bool wantsBytes = !m_inflater || m_inflater->needsInput();
    if (wantsBytes) {
        block = m_reply->read(BlockBytes);
        m_packedReceived += block.size();
        if (block.isEmpty()) {
            if (finished)
                end();
            return;
        }
    }
    if (m_inflater) {
        if (wantsBytes)
            m_inflater->feed(block);
        const std::optional<QByteArray> unpacked = m_inflater->next(BlockBytes);
        if (!unpacked) {
            fail(httprules::notUnderstood());
            return;
        }
        block = *unpacked;
    }
    m_received += block.size();
    if (m_received > m_request.maxBytes) {
        fail(httprules::tooLarge(m_request.maxBytes));
        return;
    }
    readLater(); // posted first: the handler may cancel
    if (m_handlers.onData && !block.isEmpty())
        m_handlers.onData(block);
}

bool HttpExchange::isComplete() const
{
    const bool hasBody = m_request.method != "HEAD" && m_status != 204 && m_status != 304;
    const bool hasLength = m_packedLength < 0 || m_packedReceived == m_packedLength;
    return !hasBody || (hasLength && (!m_inflater || m_inflater->isComplete()));
}

void HttpExchange::end()
{
    if (m_reply->error() != QNetworkReply::NoError || m_status == 0) {
        qCDebug(lcQt) << m_request.url.host() << m_reply->error() << m_reply->errorString();
        fail(httprules::networkError(m_reply->error(), m_request.url.host()));
        return;
    }
    if (!isComplete()) {
        fail(httprules::incomplete());
        return;
    }
    const auto done = m_handlers.onFinished;
    cancel();
    if (done)
        done();
}

void HttpExchange::fail(const HttpError &error)
{
    const auto failed = m_handlers.onFailed;
    cancel();
    if (failed)
        failed(error);
}

} // namespace moravel
