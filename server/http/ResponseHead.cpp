// SPDX-License-Identifier: MIT
#include "server/http/ResponseHead.h"

#include <array>
#include <cstdio>

namespace moravel::server {

namespace {

const char *phraseFor(int status)
{
    switch (status) {
    case 100:
        return "Continue";
    case 200:
        return "OK";
    case 206:
        return "Partial Content";
    case 302:
        return "Found";
    case 304:
        return "Not Modified";
    case 400:
        return "Bad Request";
    case 403:
        return "Forbidden";
    case 404:
        return "Not Found";
    case 405:
        return "Method Not Allowed";
    case 408:
        return "Request Timeout";
    case 411:
        return "Length Required";
    case 413:
        return "Content Too Large";
    case 414:
        return "URI Too Long";
    case 415:
        return "Unsupported Media Type";
    case 416:
        return "Range Not Satisfiable";
    case 503:
        return "Service Unavailable";
    default:
        return "Internal Server Error";
    }
}

} // namespace

QByteArray responseHead(const Response &response, bool keepAlive, const QByteArray &date)
{
    constexpr qsizetype usual = 512;
    QByteArray head;
    head.reserve(usual);
    head += "HTTP/1.1 ";
    head += QByteArray::number(response.status);
    head += ' ';
    head += phraseFor(response.status);
    head += "\r\nDate: ";
    head += date;
    head += "\r\nX-Content-Type-Options: nosniff\r\n";
    for (const auto &[name, value] : response.headers) {
        head += name;
        head += ": ";
        head += value;
        head += "\r\n";
    }
    if (response.status != 304) {
        if (!response.content.type.isEmpty()) {
            head += "Content-Type: ";
            head += response.content.type;
            head += "\r\n";
        }
        head += "Content-Length: ";
        head += QByteArray::number(response.content.sentSize());
        head += "\r\n";
    }
    head += keepAlive ? "\r\n" : "Connection: close\r\n\r\n";
    return head;
}

QByteArray httpDate(std::time_t seconds)
{
    static constexpr std::array<const char *, 7> days{"Sun", "Mon", "Tue", "Wed",
                                                      "Thu", "Fri", "Sat"};
    static constexpr std::array<const char *, 12> months{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                         "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    std::tm utc{};
    ::gmtime_r(&seconds, &utc);
    std::array<char, 64> text{};
    const int size = std::snprintf(text.data(), text.size(), "%s, %02d %s %04d %02d:%02d:%02d GMT",
                                   days.at(static_cast<std::size_t>(utc.tm_wday)), utc.tm_mday,
                                   months.at(static_cast<std::size_t>(utc.tm_mon)),
                                   utc.tm_year + 1900, utc.tm_hour, utc.tm_min, utc.tm_sec);
    return {text.data(), size};
}

} // namespace moravel::server
