// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/UnixQuery.h"

#include <QFile>
#include <QSocketNotifier>
#include <QTimer>

#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace moravel {

namespace {

constexpr int SilentMs = 3'000;
constexpr qsizetype LongestAnswer = 64 * 1024; // bytes

// -1 when nobody listens. A local socket connects at once or not at all.
int connectTo(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (name.isEmpty() || std::size_t(name.size()) >= sizeof address.sun_path)
        return -1;
    std::memcpy(address.sun_path, name.constData(), std::size_t(name.size()));
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (fd >= 0
        && ::connect(fd, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0) {
        ::close(fd);
        return -1;
    }
    return fd;
}

class Query : public QObject
{
public:
    using Done = std::function<void(const std::optional<QByteArray> &)>;

    Query(QObject *parent, int fd, const QByteArray &text, int quietMs, Done done)
        : QObject(parent)
        , m_fd(fd)
        , m_quietMs(quietMs)
        , m_done(std::move(done))
        , m_readable(fd, QSocketNotifier::Read)
    {
        connect(&m_readable, &QSocketNotifier::activated, this, [this] { read(); });
        connect(&m_patience, &QTimer::timeout, this, [this] { end(); });
        m_patience.setSingleShot(true);
        // Far below what a fresh socket takes at once.
        const auto sent = ::send(m_fd, text.constData(), std::size_t(text.size()), MSG_NOSIGNAL);
        m_readable.setEnabled(sent == text.size());
        m_patience.start(sent == text.size() ? SilentMs : 0);
    }

    ~Query() override { ::close(m_fd); }

private:
    void read()
    {
        char bytes[4096];
        const auto count = ::recv(m_fd, bytes, sizeof bytes, 0);
        if (count < 0 && (errno == EAGAIN || errno == EINTR))
            return;
        if (count <= 0)
            return end();
        m_answer.append(bytes, count);
        if (m_answer.size() > LongestAnswer) {
            m_answer.clear();
            return end();
        }
        m_patience.start(m_quietMs);
    }

    void end()
    {
        m_readable.setEnabled(false);
        m_patience.stop();
        deleteLater();
        const Done done = std::move(m_done);
        done(m_answer.isEmpty() ? std::nullopt : std::optional(m_answer));
    }

    int m_fd;
    int m_quietMs;
    Done m_done;
    QSocketNotifier m_readable;
    QTimer m_patience;
    QByteArray m_answer;
};

} // namespace

void queryUnixSocket(QObject *context, const QString &path, const QByteArray &text, int quietMs,
                     std::function<void(const std::optional<QByteArray> &)> done)
{
    const int fd = connectTo(path);
    if (fd >= 0)
        new Query(context, fd, text, quietMs, std::move(done)); // ends itself
    else
        QMetaObject::invokeMethod(
            context, [done = std::move(done)] { done(std::nullopt); }, Qt::QueuedConnection);
}

} // namespace moravel
