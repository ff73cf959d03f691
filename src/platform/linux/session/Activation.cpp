// SPDX-License-Identifier: MIT
#include "platform/linux/session/Activation.h"

#include <QGuiApplication>
#include <QWindow>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <utility>
#include <xcb/xcb.h>

namespace moravel {

namespace {

const QString TokenKey = QStringLiteral("activation-token");
const QString StartupKey = QStringLiteral("desktop-startup-id");

constexpr const char *TokenVariable = "XDG_ACTIVATION_TOKEN";
constexpr const char *StartupVariable = "DESKTOP_STARTUP_ID";
constexpr qsizetype Longest = 1000; // characters

// Empty when it cannot be what a launcher gives.
QString checked(const QString &text)
{
    const bool isPrintable = std::all_of(
        text.begin(), text.end(), [](QChar c) { return c.unicode() > 0x20 && c.unicode() < 0x7f; });
    return text.size() <= Longest && isPrintable ? text : QString();
}

xcb_connection_t *x11()
{
    if (!qGuiApp)
        return nullptr;
    const auto *native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return native ? native->connection() : nullptr;
}

xcb_window_t rootWindow(xcb_connection_t *x)
{
    return xcb_setup_roots_iterator(xcb_get_setup(x)).data->root;
}

xcb_atom_t atom(xcb_connection_t *x, const char *name)
{
    const auto cookie = xcb_intern_atom(x, 0, quint16(std::strlen(name)), name);
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(x, cookie, nullptr), &std::free);
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

xcb_client_message_event_t clientMessage(quint8 format, xcb_window_t window, xcb_atom_t type)
{
    xcb_client_message_event_t event = {};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = format;
    event.window = window;
    event.type = type;
    return event;
}

void sendToRoot(xcb_connection_t *x, quint32 mask, const xcb_client_message_event_t &event)
{
    xcb_send_event(x, 0, rootWindow(x), mask, reinterpret_cast<const char *>(&event));
}

// The text of the message in pieces of 20 bytes; the last one holds its NUL.
void sendInPieces(xcb_connection_t *x, xcb_window_t sender, const QByteArray &text)
{
    xcb_atom_t type = atom(x, "_NET_STARTUP_INFO_BEGIN");
    const xcb_atom_t further = atom(x, "_NET_STARTUP_INFO");
    constexpr qsizetype Piece = 20;
    for (qsizetype i = 0; i <= text.size(); i += Piece) {
        auto event = clientMessage(8, sender, std::exchange(type, further));
        const QByteArray piece = text.mid(i, Piece);
        std::copy(piece.begin(), piece.end(), event.data.data8);
        sendToRoot(x, XCB_EVENT_MASK_PROPERTY_CHANGE, event);
    }
}

} // namespace

QVariantMap activationFromEnvironment()
{
    QVariantMap data;
    const QString token = checked(qEnvironmentVariable(TokenVariable));
    const QString id = checked(qEnvironmentVariable(StartupVariable));
    if (!token.isEmpty())
        data.insert(TokenKey, token);
    if (!id.isEmpty())
        data.insert(StartupKey, id);
    return data;
}

QString useActivation(const QVariantMap &platformData)
{
    const QString token = checked(platformData.value(TokenKey).toString());
    if (!token.isEmpty())
        qputenv(TokenVariable, token.toUtf8());
    return checked(platformData.value(StartupKey).toString());
}

std::optional<quint32> timeOfStartupId(const QString &id)
{
    const qsizetype at = id.lastIndexOf(QLatin1String("_TIME"));
    bool isNumber = false;
    const quint32 time = at < 0 ? 0 : QStringView(id).mid(at + 5).toUInt(&isNumber);
    return isNumber ? std::optional(time) : std::nullopt;
}

void activateByStartupId(QWindow &window, const QString &id)
{
    xcb_connection_t *x = x11();
    const std::optional<quint32> time = timeOfStartupId(id);
    if (!x || !time)
        return;
    constexpr quint32 FromApplication = 1;
    auto event = clientMessage(32, xcb_window_t(window.winId()), atom(x, "_NET_ACTIVE_WINDOW"));
    event.data.data32[0] = FromApplication;
    event.data.data32[1] = *time;
    sendToRoot(x, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT, event);
    xcb_flush(x);
}

void endStartup(const QString &id)
{
    xcb_connection_t *x = x11();
    if (!x || id.isEmpty())
        return;
    QByteArray text = "remove: ID=";
    for (const char c : id.toLatin1()) {
        if (c == '"' || c == '\\')
            text.append('\\');
        text.append(c);
    }
    // The pieces of one message are told from those of another by their sender's window.
    const xcb_window_t sender = xcb_generate_id(x);
    xcb_create_window(x, XCB_COPY_FROM_PARENT, sender, rootWindow(x), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    sendInPieces(x, sender, text);
    xcb_destroy_window(x, sender);
    xcb_flush(x);
}

} // namespace moravel
