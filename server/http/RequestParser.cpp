// SPDX-License-Identifier: MIT
#include "server/http/RequestParser.h"

#include <algorithm>
#include <charconv>
#include <strings.h>

namespace moravel::server {

namespace {

constexpr std::size_t longestHead = 16'384;
constexpr std::size_t longestTarget = 2048;
constexpr std::size_t longestField = 8192;
constexpr std::size_t mostDigits = 18;

using Text = std::string_view;

/// What the header fields say, as far as it matters.
struct Fields
{
    Text host;
    Text length;
    int hosts = 0;
    int lengths = 0;
    bool transferEncoding = false;
    bool contentEncoding = false;
};

QByteArray bytesOf(Text text)
{
    return {text.data(), static_cast<qsizetype>(text.size())};
}

bool isName(Text name, const char *wanted)
{
    return name.size() == std::char_traits<char>::length(wanted)
        && ::strncasecmp(name.data(), wanted, name.size()) == 0;
}

bool isTokenByte(char c)
{
    constexpr Text marks = "!#$%&'*+-.^_`|~";
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z')
        || marks.find(c) != Text::npos;
}

bool isToken(Text text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(), isTokenByte);
}

bool isControl(char c)
{
    return (c >= 0 && c < ' ' && c != '\t') || c == '\x7f';
}

Text trimmed(Text text)
{
    const auto from = text.find_first_not_of(" \t");
    return from == Text::npos ? Text() : text.substr(from, text.find_last_not_of(" \t") - from + 1);
}

/// Whether a comma-separated list holds @p wanted, in any case.
bool lists(Text list, const char *wanted)
{
    while (!list.empty()) {
        const auto comma = list.find(',');
        if (isName(trimmed(list.substr(0, comma)), wanted))
            return true;
        list.remove_prefix(comma == Text::npos ? list.size() : comma + 1);
    }
    return false;
}

/// "GET /x HTTP/1.1"; the status of its refusal, or 0.
int takeRequestLine(Text line, ParsedHead &head)
{
    const auto first = line.find(' ');
    const auto last = line.rfind(' ');
    if (first == Text::npos || last == first || !isToken(line.substr(0, first)))
        return 400;
    const Text target = line.substr(first + 1, last - first - 1);
    const Text version = line.substr(last + 1);
    if (version != "HTTP/1.1" && version != "HTTP/1.0")
        return 400;
    if (target.empty() || target.front() != '/' || target.find_first_of(" \t") != Text::npos)
        return 400;
    if (target.size() > longestTarget)
        return 414;
    head.request.method = bytesOf(line.substr(0, first));
    head.request.target = bytesOf(target);
    head.keepAlive = version == "HTTP/1.1";
    return 0;
}

void takeField(Text name, Text value, ParsedHead &head, Fields &fields)
{
    if (isName(name, "Host")) {
        fields.host = value;
        ++fields.hosts;
    } else if (isName(name, "Content-Length")) {
        fields.length = value;
        ++fields.lengths;
    } else if (isName(name, "Connection")) {
        head.keepAlive = (head.keepAlive || lists(value, "keep-alive")) && !lists(value, "close");
    } else if (isName(name, "If-None-Match")) {
        head.request.ifNoneMatch = bytesOf(value);
    } else if (isName(name, "If-Modified-Since")) {
        head.request.ifModifiedSince = bytesOf(value);
    } else if (isName(name, "Range")) {
        head.request.range = bytesOf(value);
    } else if (isName(name, "If-Range")) {
        head.request.ifRange = bytesOf(value);
    } else if (isName(name, "Expect")) {
        head.expectsContinue = isName(value, "100-continue");
    } else if (isName(name, "X-Forwarded-For") || isName(name, "Forwarded")) {
        head.request.forwarded = true;
    }
    fields.transferEncoding = fields.transferEncoding || isName(name, "Transfer-Encoding");
    fields.contentEncoding = fields.contentEncoding || isName(name, "Content-Encoding");
}

/// All lines after the first; false when one is malformed.
bool takeFields(Text lines, ParsedHead &head, Fields &fields)
{
    while (!lines.empty()) {
        const auto end = lines.find("\r\n");
        const Text line = lines.substr(0, end);
        const auto colon = line.find(':');
        if (line.size() > longestField || colon == Text::npos || !isToken(line.substr(0, colon)))
            return false;
        takeField(line.substr(0, colon), trimmed(line.substr(colon + 1)), head, fields);
        lines.remove_prefix(end + 2);
    }
    return true;
}

/// Judges what is said of a body; the status of the refusal, or 0.
int takeLength(ParsedHead &head, const Fields &fields)
{
    const bool posts = head.request.method == "POST";
    if (fields.transferEncoding)
        return 411;
    if (fields.contentEncoding)
        return 415;
    if (fields.lengths == 0)
        return posts ? 411 : 0;
    const Text length = fields.length;
    qint64 number = 0;
    const auto read = std::from_chars(length.data(), length.data() + length.size(), number);
    const bool plain = !length.empty() && length.size() <= mostDigits && length.front() != '-'
        && read.ec == std::errc() && read.ptr == length.data() + length.size();
    if (!plain || fields.lengths != 1)
        return 400;
    if (number > mostBodyBytes)
        return 413;
    head.bodyBytes = static_cast<qsizetype>(number);
    return !posts && number > 0 ? 400 : 0;
}

int statusOfEndless(Text bytes)
{
    const Text line = bytes.substr(0, bytes.find("\r\n"));
    const auto blank = line.find(' ');
    const bool longTarget = blank != Text::npos && isToken(line.substr(0, blank))
        && line.substr(blank).starts_with(" /") && line.size() > longestTarget + blank;
    return longTarget ? 414 : 400;
}

ParsedHead refused(int status)
{
    ParsedHead head;
    head.state = ParsedHead::State::Refused;
    head.status = status;
    head.keepAlive = false;
    return head;
}

} // namespace

ParsedHead parseHead(std::string_view bytes)
{
    // A stray line end or control byte will not become right by waiting for more.
    const auto end = bytes.find("\r\n\r\n");
    const Text text = bytes.substr(0, end);
    if (end == Text::npos || end > longestHead)
        return bytes.size() > longestHead || statusOfEndless(bytes) == 414
            ? refused(statusOfEndless(bytes))
            : ParsedHead();
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool lineEnd = text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n';
        if (!lineEnd && isControl(text[at]))
            return refused(400);
        at += lineEnd ? 1 : 0;
    }
    ParsedHead head;
    Fields fields;
    const auto firstEnd = text.find("\r\n");
    if (const int status = takeRequestLine(text.substr(0, firstEnd), head))
        return refused(status);
    const Text lines = firstEnd == Text::npos ? Text() : bytes.substr(firstEnd + 2, end - firstEnd);
    if (!takeFields(lines, head, fields))
        return refused(400);
    if (const int status = takeLength(head, fields))
        return refused(status);
    if (fields.hosts == 1)
        head.request.host = bytesOf(fields.host);
    head.state = ParsedHead::State::Complete;
    head.headBytes = static_cast<qsizetype>(end) + 4;
    return head;
}

const char *sentenceFor(int status)
{
    switch (status) {
    case 408:
        return "The request took too long.\n";
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

} // namespace moravel::server
