// SPDX-License-Identifier: MIT
// What may be sent, where a redirect may lead, and how failures read. Pure functions.
#pragma once

#include "platform/Http.h"

#include <QNetworkReply>

namespace moravel::httprules {

/// More redirects than this in a row count as a circle.
inline constexpr int MostRedirects = 5;

/// Tells whether @p url is a valid http or https URL with a host.
bool isAllowed(const QUrl &url);

/// Tells whether @p request can be sent: an allowed URL, and a method and headers that cannot break
/// out of their line.
bool isSendable(const HttpRequest &request);

/// Tells whether repeating a request of this method changes nothing on the server.
bool isRepeatable(const QByteArray &method);

bool isRedirect(int status);

/// The request that follows @p request when it is answered by @p status and @p target (absolute).
/// Refused are targets that are not allowed, the step down from https to http, and 307 and 308 for
/// what is not repeatable; after 301 to 303 such a request goes on as a GET without a body.
/// Headers that carry rights do not go along to another host.
tl::expected<HttpRequest, HttpError> redirected(const HttpRequest &request, int status,
                                                const QUrl &target);

/// The failures, as sentences for the status line.
HttpError statusError(int status);
HttpError networkError(QNetworkReply::NetworkError error, const QString &host);
HttpError tooLarge(qint64 maxBytes);
HttpError timedOut();
HttpError incomplete();
HttpError notUnderstood();
HttpError cannotSend();

} // namespace moravel::httprules
