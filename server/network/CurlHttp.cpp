// SPDX-License-Identifier: MIT
#include "server/network/CurlHttp.h"

#include "server/core/Version.h"

#include <arpa/inet.h>
#include <curl/curl.h>
#include <memory>
#include <netinet/in.h>
#include <unistd.h>

namespace moravel::server {

namespace {

using Clock = std::chrono::steady_clock;

struct Transfer
{
    const FetchRequest &request;
    const std::atomic<bool> &stopped;
    QByteArray body = {};
    bool full = false;
    bool refused = false;
    QByteArray etag = {};
    QByteArray lastModified = {};
    qint64 rangeTotal = -1;
};

/// Addresses by which a redirect or a link could reach what only this machine may.
bool isPublic(const sockaddr &address)
{
    if (address.sa_family == AF_INET) {
        const std::uint32_t ip =
            ntohl(reinterpret_cast<const sockaddr_in &>(address).sin_addr.s_addr);
        const auto in = [ip](std::uint32_t net, int bits) {
            return ip >> (32 - bits) == net >> (32 - bits);
        };
        return !(in(0x00000000, 8) || in(0x0a000000, 8) || in(0x64400000, 10) || in(0x7f000000, 8)
                 || in(0xa9fe0000, 16) || in(0xac100000, 12) || in(0xc0000000, 24)
                 || in(0xc0a80000, 16) || in(0xc6120000, 15) || in(0xe0000000, 3));
    }
    if (address.sa_family != AF_INET6)
        return false;
    const in6_addr &six = reinterpret_cast<const sockaddr_in6 &>(address).sin6_addr;
    constexpr unsigned globalUnicast = 1; // 2000::/3: neither mapped, local nor multicast.
    constexpr unsigned tunnel = 0x2002; // 6to4 carries an IPv4 address.
    return six.s6_addr[0] >> 5 == globalUnicast
        && (six.s6_addr[0] << 8 | six.s6_addr[1]) != static_cast<int>(tunnel);
}

curl_socket_t openSocket(void *context, curlsocktype, curl_sockaddr *address)
{
    auto *transfer = static_cast<Transfer *>(context);
    if (!transfer->request.mayBePrivate && !isPublic(address->addr)) {
        transfer->refused = true;
        return CURL_SOCKET_BAD;
    }
    return ::socket(address->family, address->socktype | SOCK_CLOEXEC, address->protocol);
}

/// Also for connections that were opened earlier, for a request that may go there.
int checkPeer(void *context, char *address, char *, int, int)
{
    auto *transfer = static_cast<Transfer *>(context);
    sockaddr_in four{};
    sockaddr_in6 six{};
    four.sin_family = AF_INET;
    six.sin6_family = AF_INET6;
    bool allowed = transfer->request.mayBePrivate;
    if (::inet_pton(AF_INET, address, &four.sin_addr) == 1)
        allowed = allowed || isPublic(reinterpret_cast<const sockaddr &>(four));
    else if (::inet_pton(AF_INET6, address, &six.sin6_addr) == 1)
        allowed = allowed || isPublic(reinterpret_cast<const sockaddr &>(six));
    transfer->refused = !allowed;
    return allowed ? CURL_PREREQFUNC_OK : CURL_PREREQFUNC_ABORT;
}

std::size_t takeBody(char *data, std::size_t one, std::size_t count, void *context)
{
    auto *transfer = static_cast<Transfer *>(context);
    const qint64 room = transfer->request.mostBytes - transfer->body.size();
    const auto size = static_cast<qint64>(one * count);
    transfer->body.append(data, std::min(room, size));
    transfer->full = size > room;
    return transfer->full ? 0 : one * count;
}

std::size_t takeHeader(char *data, std::size_t one, std::size_t count, void *context)
{
    auto *transfer = static_cast<Transfer *>(context);
    const QByteArray line(data, static_cast<qsizetype>(one * count));
    const qsizetype colon = line.indexOf(':');
    const QByteArray name = line.left(std::max<qsizetype>(colon, 0)).toLower();
    const QByteArray value = line.mid(colon + 1).trimmed();
    if (line.startsWith("HTTP/")) // The next answer on the way.
        transfer->etag = transfer->lastModified = QByteArray();
    else if (name == "etag")
        transfer->etag = value;
    else if (name == "last-modified")
        transfer->lastModified = value;
    else if (name == "content-range")
        transfer->rangeTotal = value.mid(value.lastIndexOf('/') + 1).toLongLong();
    return one * count;
}

int goOn(void *context, curl_off_t, curl_off_t, curl_off_t, curl_off_t)
{
    return static_cast<Transfer *>(context)->stopped ? 1 : 0;
}

/// One for each thread: it keeps its connections.
CURL *threadHandle()
{
    struct Handle
    {
        CURL *curl = curl_easy_init();
        Handle() = default;

        ~Handle() { curl_easy_cleanup(curl); }

        Handle(const Handle &) = delete;
        Handle &operator=(const Handle &) = delete;
    };

    thread_local const Handle handle;
    curl_easy_reset(handle.curl);
    return handle.curl;
}

using HeaderList = std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)>;

void prepare(CURL *curl, const QByteArray &userAgent, Transfer &transfer)
{
    const FetchRequest &request = transfer.request;
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(request.deadline - Clock::now());
    constexpr long connectMs = 8000;
    constexpr long mostRedirects = 5;
    curl_easy_setopt(curl, CURLOPT_URL, request.url.toEncoded().constData());
    curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(curl, CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(curl, CURLOPT_FOLLOWLOCATION, 1L);
    curl_easy_setopt(curl, CURLOPT_MAXREDIRS, mostRedirects);
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl, CURLOPT_TIMEOUT_MS,
                     static_cast<long>(std::max<long long>(left.count(), 1)));
    curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT_MS, connectMs);
    curl_easy_setopt(curl, CURLOPT_USERAGENT, userAgent.constData());
    curl_easy_setopt(curl, CURLOPT_OPENSOCKETFUNCTION, openSocket);
    curl_easy_setopt(curl, CURLOPT_OPENSOCKETDATA, &transfer);
    curl_easy_setopt(curl, CURLOPT_PREREQFUNCTION, checkPeer);
    curl_easy_setopt(curl, CURLOPT_PREREQDATA, &transfer);
    curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, takeBody);
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, &transfer);
    curl_easy_setopt(curl, CURLOPT_HEADERFUNCTION, takeHeader);
    curl_easy_setopt(curl, CURLOPT_HEADERDATA, &transfer);
    curl_easy_setopt(curl, CURLOPT_NOPROGRESS, 0L);
    curl_easy_setopt(curl, CURLOPT_XFERINFOFUNCTION, goOn);
    curl_easy_setopt(curl, CURLOPT_XFERINFODATA, &transfer);
    if (request.beginningOnly)
        curl_easy_setopt(curl, CURLOPT_RANGE,
                         ("0-" + QByteArray::number(request.mostBytes - 1)).constData());
    else
        curl_easy_setopt(curl, CURLOPT_ACCEPT_ENCODING, ""); // All that the library can undo.
}

template <typename Value>
Value infoOf(CURL *curl, CURLINFO what, Value value)
{
    curl_easy_getinfo(curl, what, &value);
    return value;
}

Fetched fetched(CURL *curl, Transfer &transfer)
{
    const char *none = nullptr;
    const char *type = infoOf(curl, CURLINFO_CONTENT_TYPE, none);
    const auto length = infoOf(curl, CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, curl_off_t(-1));
    const auto wait = infoOf(curl, CURLINFO_RETRY_AFTER, curl_off_t(0));
    const int status = static_cast<int>(infoOf(curl, CURLINFO_RESPONSE_CODE, 0L));
    constexpr curl_off_t longestWait = 7 * 86'400;
    Fetched result;
    result.status = status;
    result.type = QByteArray(type).toLower();
    result.type =
        result.type
            .left(result.type.indexOf(';') < 0 ? result.type.size() : result.type.indexOf(';'))
            .trimmed();
    result.url = QUrl::fromEncoded(infoOf(curl, CURLINFO_EFFECTIVE_URL, none));
    result.totalBytes = transfer.rangeTotal > 0 ? transfer.rangeTotal : length;
    result.retryAfter = static_cast<int>(std::clamp<curl_off_t>(wait, 0, longestWait));
    result.body = std::move(transfer.body);
    result.etag = std::move(transfer.etag);
    result.lastModified = std::move(transfer.lastModified);
    return result;
}

} // namespace

CurlHttp::CurlHttp(const QString &contact)
    : m_userAgent(QStringLiteral("moravel-service/%1 (%2)").arg(versionText(), contact).toUtf8())
{
    curl_global_init(CURL_GLOBAL_DEFAULT);
}

tl::expected<Fetched, QString> CurlHttp::get(const FetchRequest &request)
{
    const QString scheme = request.url.scheme();
    if (scheme != u"http" && scheme != u"https")
        return tl::unexpected(QStringLiteral("its address is neither http nor https"));
    if (m_stopped)
        return tl::unexpected(QStringLiteral("the service is ending"));
    Transfer transfer{request, m_stopped};
    CURL *curl = threadHandle();
    prepare(curl, m_userAgent, transfer);
    HeaderList headers(nullptr, &curl_slist_free_all);
    for (const QByteArray &header : request.headers)
        headers.reset(curl_slist_append(headers.release(), header.constData()));
    curl_easy_setopt(curl, CURLOPT_HTTPHEADER, headers.get());
    const CURLcode code = curl_easy_perform(curl);
    const bool enough = code == CURLE_WRITE_ERROR && transfer.full && request.beginningOnly;
    if (code == CURLE_OK || enough)
        return fetched(curl, transfer);
    if (transfer.full)
        return tl::unexpected(QStringLiteral("its answer is too long"));
    if (transfer.refused)
        return tl::unexpected(QStringLiteral("its address leads into a private network"));
    return tl::unexpected(QString::fromUtf8(curl_easy_strerror(code)));
}

} // namespace moravel::server
