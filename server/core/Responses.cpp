// SPDX-License-Identifier: MIT
#include "server/core/Responses.h"

#include <QCryptographicHash>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace moravel::server {

namespace {

QByteArray entityTag(const Content &content)
{
    if (!content.file)
        return '"' + QCryptographicHash::hash(content.bytes, QCryptographicHash::Sha1).toHex()
            + '"';
    return '"' + QByteArray::number(content.file->size(), 16) + '-'
        + QByteArray::number(content.modified.toMSecsSinceEpoch(), 16) + '"';
}

bool namesTag(const QByteArray &ifNoneMatch, const QByteArray &tag)
{
    const QList<QByteArray> parts = ifNoneMatch.split(',');
    return std::any_of(parts.begin(), parts.end(), [&](const QByteArray &part) {
        const QByteArray wanted = part.trimmed();
        return wanted == "*" || wanted == tag || wanted == "W/" + tag;
    });
}

/// A date is compared as text: what clients send back is the Last-Modified they were given.
bool clientHasIt(const Request &request, const Response &response)
{
    if (!request.ifNoneMatch.isEmpty())
        return namesTag(request.ifNoneMatch, response.header("ETag"));
    return !request.ifModifiedSince.isEmpty()
        && request.ifModifiedSince == response.header("Last-Modified");
}

/// One range of bytes is honoured; several would multiply what is sent, and get the whole.
void cutToRange(Response &response, const QByteArray &range)
{
    static const QRegularExpression form(QStringLiteral("\\Abytes=(\\d{0,15})-(\\d{0,15})\\z"));
    const auto match = form.match(QString::fromLatin1(range));
    const QString first = match.captured(1);
    const QString last = match.captured(2);
    if (!match.hasMatch() || (first.isEmpty() && last.isEmpty()))
        return;
    const qint64 size = response.content.size();
    const qint64 from =
        first.isEmpty() ? std::max<qint64>(size - last.toLongLong(), 0) : first.toLongLong();
    const qint64 to =
        first.isEmpty() || last.isEmpty() ? size - 1 : std::min(last.toLongLong(), size - 1);
    if (!first.isEmpty() && !last.isEmpty() && last.toLongLong() < from)
        return;
    const QByteArray total = '/' + QByteArray::number(size);
    if (from >= size) {
        response.status = 416;
        response.content = {};
        response.headers.emplace_back("Content-Range", "bytes *" + total);
        return;
    }
    response.status = 206;
    response.content.from = from;
    response.content.length = to - from + 1;
    response.headers.emplace_back("Content-Range",
                                  "bytes " + QByteArray::number(from) + '-' + QByteArray::number(to)
                                      + total);
}

int statusOf(Reason reason)
{
    switch (reason) {
    case Reason::RateLimited:
    case Reason::SourceDown:
    case Reason::Busy:
        return 503;
    default:
        return 404;
    }
}

} // namespace

Response plainTextResponse(const QByteArray &utf8)
{
    return {200, {utf8, nullptr, "text/plain; charset=utf-8", {}}, {{"Cache-Control", "no-store"}}};
}

Response textResponse(int status, const QString &text)
{
    return {status,
            {text.toUtf8(), nullptr, "text/plain; charset=utf-8", {}},
            {{"Cache-Control", "no-store"}}};
}

Response pageResponse(const QByteArray &html)
{
    return {200,
            {html, nullptr, "text/html; charset=utf-8", {}},
            {{"Cache-Control", "no-cache"},
             {"Content-Security-Policy",
              "default-src 'none'; img-src 'self' http: https:; style-src 'unsafe-inline'; "
              "base-uri 'none'"}}};
}

Response pictureResponse(const Request &request, Content content, bool isFinal)
{
    Response response;
    if (!content.elsewhere.isEmpty())
        return {
            302, {}, {{"Location", content.elsewhere}, {"Cache-Control", "public, max-age=300"}}};
    response.headers = {
        {"ETag", entityTag(content)},
        {"Cache-Control", isFinal ? "public, max-age=31536000, immutable" : "public, max-age=300"}};
    if (content.modified.isValid()) {
        const QString form = QStringLiteral("ddd, dd MMM yyyy HH:mm:ss 'GMT'");
        response.headers.emplace_back(
            "Last-Modified", QLocale::c().toString(content.modified.toUTC(), form).toLatin1());
    }
    if (clientHasIt(request, response)) {
        response.status = 304;
        return response;
    }
    response.headers.emplace_back("Accept-Ranges", "bytes");
    response.content = std::move(content);
    const bool sameAsThen = request.ifRange.isEmpty() || request.ifRange == response.header("ETag")
        || request.ifRange == response.header("Last-Modified");
    if (request.method == "GET" && sameAsThen)
        cutToRange(response, request.range);
    return response;
}

Response unavailableResponse(const Unavailable &why)
{
    Response response = textResponse(statusOf(why.reason), why.message + u'\n');
    if (why.retryAfter > 0)
        response.headers.emplace_back("Retry-After", QByteArray::number(why.retryAfter));
    return response;
}

} // namespace moravel::server
