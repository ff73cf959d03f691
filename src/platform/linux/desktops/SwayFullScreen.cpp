// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/SwayFullScreen.h"

#include "platform/linux/desktops/DesktopLog.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <cstring>
#include <utility>

namespace moravel {

namespace {

const QByteArray Magic = QByteArrayLiteral("i3-ipc");
constexpr qsizetype HeaderSize = 14; // magic, length of the payload, type
constexpr quint32 Longest = 16 << 20; // bytes; a window takes some 2 KiB of the tree

enum MessageType : quint32 {
    Subscribe = 2,
    GetTree = 4,
    WorkspaceEvent = 0x80000000,
    WindowEvent = 0x80000003
};

// Numbers are in the machine's own byte order.
QByteArray message(quint32 type, const QByteArray &payload)
{
    const std::array<quint32, 2> numbers{static_cast<quint32>(payload.size()), type};
    return Magic + QByteArray(reinterpret_cast<const char *>(numbers.data()), sizeof numbers)
        + payload;
}

// A window in full screen may be a whole group of them, of which one has the focus. Workspaces always say
// that they are.
std::optional<bool> focusIn(const QJsonObject &node, bool isInFullScreen, qint64 self)
{
    const bool isWindow = node[u"type"].toString().endsWith(QLatin1String("con"));
    const bool isFull = isInFullScreen || (isWindow && node[u"fullscreen_mode"].toInt() > 0);
    if (node[u"focused"].toBool())
        return isFull && node[u"pid"].toInteger() != self;
    for (const QLatin1String list : {QLatin1String("nodes"), QLatin1String("floating_nodes")}) {
        for (const QJsonValue child : node[list].toArray()) {
            if (const auto found = focusIn(child.toObject(), isFull, self))
                return found;
        }
    }
    return std::nullopt;
}

// A title may change many times a second.
bool mayMatter(const QByteArray &event)
{
    const QString change = QJsonDocument::fromJson(event)[u"change"].toString();
    return change != u"title" && change != u"mark" && change != u"urgent";
}

} // namespace

std::optional<bool> isFocusFullScreen(const QByteArray &tree, qint64 self)
{
    const QJsonDocument document = QJsonDocument::fromJson(tree);
    if (!document.isObject())
        return std::nullopt;
    return focusIn(document.object(), false, self).value_or(false);
}

SwayFullScreen::SwayFullScreen(const QString &socket, qint64 self) : m_self(self)
{
    QObject::connect(&m_socket, &QLocalSocket::readyRead, &m_socket, [this] { read(); });
    QObject::connect(&m_socket, &QLocalSocket::errorOccurred, &m_socket,
                     [this] { giveUp(m_socket.errorString()); });
    QObject::connect(&m_socket, &QLocalSocket::connected, &m_socket, [this] {
        m_socket.write(message(Subscribe, R"(["window", "workspace"])"));
        ask();
    });
    m_socket.connectToServer(socket);
}

void SwayFullScreen::ask()
{
    m_isStale = m_isAsking;
    if (!std::exchange(m_isAsking, true))
        m_socket.write(message(GetTree, {}));
}

void SwayFullScreen::read()
{
    m_bytes += m_socket.readAll();
    while (m_bytes.size() >= HeaderSize) {
        std::array<quint32, 2> numbers{};
        std::memcpy(numbers.data(), m_bytes.constData() + Magic.size(), sizeof numbers);
        const auto [length, type] = numbers;
        if (!m_bytes.startsWith(Magic) || length > Longest)
            return giveUp(QStringLiteral("not understood"));
        if (m_bytes.size() < HeaderSize + qsizetype(length))
            return;
        const QByteArray payload = m_bytes.mid(HeaderSize, length);
        m_bytes.remove(0, HeaderSize + qsizetype(length));
        take(type, payload);
    }
}

void SwayFullScreen::take(quint32 type, const QByteArray &payload)
{
    if (type == WorkspaceEvent || type == WindowEvent) {
        if (mayMatter(payload))
            ask();
    } else if (type == GetTree) {
        m_isAsking = false;
        if (std::exchange(m_isStale, false))
            return ask();
        setFullScreen(isFocusFullScreen(payload, m_self).value_or(false));
    }
}

void SwayFullScreen::giveUp(const QString &why)
{
    qCInfo(desktopsLog).noquote() << "sway no longer tells of full screens:" << why;
    m_bytes.clear();
    m_socket.abort();
    setFullScreen(false);
}

} // namespace moravel
