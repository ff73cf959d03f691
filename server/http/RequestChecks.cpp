// SPDX-License-Identifier: MIT
#include "server/http/RequestChecks.h"

#include <algorithm>
#include <array>

namespace moravel::server {

namespace {

QByteArray headerOf(const httplib::Request &request, const char *name)
{
    return request.get_header_value_count(name) == 1
        ? QByteArray::fromStdString(request.get_header_value(name))
        : QByteArray();
}

int lengthRefusal(const httplib::Request &request)
{
    const std::string length = request.get_header_value("Content-Length");
    constexpr std::size_t mostDigits = 18;
    const bool plain = !length.empty() && length.size() <= mostDigits
        && std::all_of(length.begin(), length.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (!plain || request.get_header_value_count("Content-Length") != 1)
        return 400;
    if (std::stoull(length) > mostBodyBytes)
        return 413;
    return request.method != "POST" && std::stoull(length) > 0 ? 400 : 0;
}

bool sendFile(QFile &file, std::size_t offset, std::size_t length, httplib::DataSink &sink)
{
    static constexpr std::size_t chunk = 262'144;
    if (!file.seek(static_cast<qint64>(offset)))
        return false;
    const QByteArray bytes = file.read(static_cast<qint64>(std::min(length, chunk)));
    return !bytes.isEmpty()
        && sink.write(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

} // namespace

int refusalOf(const httplib::Request &request)
{
    constexpr std::size_t longestTarget = 2048;
    if (request.target.size() > longestTarget)
        return 414;
    if (request.target.empty() || request.target.front() != '/')
        return 400;
    if (request.has_header("Transfer-Encoding"))
        return 411;
    if (request.has_header("Content-Encoding"))
        return 415;
    if (request.has_header("Content-Length"))
        return lengthRefusal(request);
    return request.method == "POST" ? 411 : 0;
}

const char *sentenceFor(int status)
{
    switch (status) {
    case 411:
        return "The request must tell the length of its body.\n";
    case 413:
        return "The request's body is too long.\n";
    case 414:
        return "The address is too long.\n";
    case 415:
        return "The request's body must not be compressed.\n";
    case 500:
        return "The service failed to answer this.\n";
    default:
        return "The request is malformed.\n";
    }
}

Request takenFrom(const httplib::Request &request, const std::string &body)
{
    return {QByteArray::fromStdString(request.method),
            QByteArray::fromStdString(request.target),
            headerOf(request, "Host"),
            QByteArray::fromStdString(body),
            headerOf(request, "If-None-Match"),
            headerOf(request, "If-Modified-Since")};
}

void putInto(httplib::Response &out, const Response &response)
{
    out.status = response.status;
    out.set_header("X-Content-Type-Options", "nosniff");
    for (const auto &[name, value] : response.headers)
        out.set_header(name.toStdString(), value.toStdString());
    const Content &content = response.content;
    if (content.file) {
        out.set_content_provider(
            static_cast<std::size_t>(content.size()), content.type.toStdString(),
            [file = content.file](std::size_t offset, std::size_t length, httplib::DataSink &sink) {
                return sendFile(*file, offset, length, sink);
            });
    } else if (!content.type.isEmpty()) {
        out.set_content(content.bytes.toStdString(), content.type.toStdString());
    }
}

} // namespace moravel::server
