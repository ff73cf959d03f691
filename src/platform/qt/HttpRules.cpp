// SPDX-License-Identifier: MIT
#include "platform/qt/HttpRules.h"

#include "platform/Texts.h"

#include <QLocale>

#include <algorithm>

namespace moravel::httprules {

namespace {

bool isToken(const QByteArray &name)
{
    return !name.isEmpty() && std::all_of(name.begin(), name.end(), [](char c) {
        const bool letter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        return letter || (c >= '0' && c <= '9') || c == '-' || c == '_';
    });
}

bool isOneLine(const QByteArray &value)
{
    return std::none_of(value.begin(), value.end(),
                        [](char c) { return c == '\r' || c == '\n' || c == '\0'; });
}

bool isHttps(const QUrl &url)
{
    return url.scheme() == QLatin1String("https");
}

bool isSameOrigin(const QUrl &a, const QUrl &b)
{
    const auto port = [](const QUrl &url) { return url.port(isHttps(url) ? 443 : 80); };
    return a.scheme() == b.scheme() && a.host() == b.host() && port(a) == port(b);
}

QString statusReason(int status)
{
    switch (status) {
    case 400:
        return Texts::tr("bad request");
    case 401:
        return Texts::tr("login required");
    case 403:
        return Texts::tr("access denied");
    case 404:
        return Texts::tr("not found");
    case 408:
        return Texts::tr("request timed out");
    case 410:
        return Texts::tr("no longer there");
    case 429:
        return Texts::tr("too many requests");
    case 500:
        return Texts::tr("internal error");
    case 502:
        return Texts::tr("bad gateway");
    case 503:
        return Texts::tr("service unavailable");
    case 504:
        return Texts::tr("gateway timed out");
    default:
        return status < 400 ? Texts::tr("unexpected answer")
            : status < 500  ? Texts::tr("request refused")
                            : Texts::tr("server error");
    }
}

} // namespace

bool isAllowed(const QUrl &url)
{
    return url.isValid() && !url.host().isEmpty()
        && (isHttps(url) || url.scheme() == QLatin1String("http"));
}

bool isSendable(const HttpRequest &request)
{
    return isAllowed(request.url) && isToken(request.method)
        && std::all_of(request.headers.begin(), request.headers.end(), [](const auto &header) {
               return isToken(header.first) && isOneLine(header.second);
           });
}

bool isRepeatable(const QByteArray &method)
{
    return method == "GET" || method == "HEAD";
}

bool isRedirect(int status)
{
    return (status >= 301 && status <= 303) || status == 307 || status == 308;
}

tl::expected<HttpRequest, HttpError> redirected(const HttpRequest &request, int status,
                                                const QUrl &target)
{
    if (!isAllowed(target) || (isHttps(request.url) && !isHttps(target)))
        return tl::unexpected(
            HttpError{status, Texts::tr("The server refers to a forbidden address.")});
    HttpRequest next = request;
    next.url = target;
    if (!isRepeatable(request.method)) {
        if (status > 303)
            return tl::unexpected(statusError(status));
        next.method = "GET";
        next.body.clear();
        next.headers.removeIf(
            [](const auto &h) { return h.first.toLower().startsWith("content-"); });
    }
    if (!isSameOrigin(request.url, target)) {
        next.headers.removeIf([](const auto &h) {
            const QByteArray name = h.first.toLower();
            return name == "authorization" || name == "cookie";
        });
    }
    return next;
}

HttpError statusError(int status)
{
    return {
        status,
        Texts::tr("The server answered with error %1 (%2).").arg(status).arg(statusReason(status))};
}

HttpError networkError(QNetworkReply::NetworkError error, const QString &host)
{
    switch (error) {
    case QNetworkReply::HostNotFoundError:
        return {0, Texts::tr("The server %1 could not be found.").arg(host)};
    case QNetworkReply::ConnectionRefusedError:
    case QNetworkReply::TemporaryNetworkFailureError:
    case QNetworkReply::NetworkSessionFailedError:
    case QNetworkReply::UnknownNetworkError:
        return {0, Texts::tr("The server %1 could not be reached.").arg(host)};
    case QNetworkReply::RemoteHostClosedError:
    case QNetworkReply::ContentReSendError:
        return incomplete();
    case QNetworkReply::TimeoutError:
    case QNetworkReply::OperationCanceledError: // the network layer's own idle timeout
        return timedOut();
    case QNetworkReply::SslHandshakeFailedError:
        return {0, Texts::tr("A secure connection to %1 could not be made.").arg(host)};
    case QNetworkReply::ProxyConnectionRefusedError:
    case QNetworkReply::ProxyConnectionClosedError:
    case QNetworkReply::ProxyNotFoundError:
    case QNetworkReply::ProxyTimeoutError:
    case QNetworkReply::ProxyAuthenticationRequiredError:
    case QNetworkReply::UnknownProxyError:
        return {0, Texts::tr("The proxy server could not be used.")};
    default:
        return notUnderstood();
    }
}

HttpError tooLarge(qint64 maxBytes)
{
    return {0,
            Texts::tr("The answer is larger than %1.").arg(QLocale().formattedDataSize(maxBytes))};
}

HttpError timedOut()
{
    return {0, Texts::tr("The server took too long to answer.")};
}

HttpError incomplete()
{
    return {0, Texts::tr("The connection was lost before the answer was complete.")};
}

HttpError notUnderstood()
{
    return {0, Texts::tr("The server's answer could not be understood.")};
}

HttpError cannotSend()
{
    return {0, Texts::tr("The address is not valid.")};
}

} // namespace moravel::httprules
