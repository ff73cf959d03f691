// SPDX-License-Identifier: MIT
#include "platform/linux/session/EmbeddingTray.h"

#include <QGuiApplication>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace moravel {

namespace {

struct FreeDeleter
{
    void operator()(void *memory) const { std::free(memory); }
};

template <typename T>
std::unique_ptr<T, FreeDeleter> owned(T *reply)
{
    return std::unique_ptr<T, FreeDeleter>(reply);
}

// Null on other platforms than X11.
xcb_connection_t *connection()
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

xcb_atom_t atom(xcb_connection_t *x, const QByteArray &name)
{
    const auto cookie = xcb_intern_atom(x, false, std::uint16_t(name.size()), name.constData());
    const auto reply = owned(xcb_intern_atom_reply(x, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

int screenNumber()
{
    char *host = nullptr;
    int display = 0;
    int screen = 0;
    xcb_parse_display(nullptr, &host, &display, &screen);
    std::free(host);
    return screen;
}

} // namespace

EmbeddingTray::EmbeddingTray(std::function<void()> appeared) : m_appeared(std::move(appeared))
{
    xcb_connection_t *x = connection();
    if (!x)
        return;
    m_manager = atom(x, "MANAGER");
    m_selection = atom(x, "_NET_SYSTEM_TRAY_S" + QByteArray::number(screenNumber()));
    qGuiApp->installNativeEventFilter(this);
}

EmbeddingTray::~EmbeddingTray()
{
    if (qGuiApp)
        qGuiApp->removeNativeEventFilter(this);
}

bool EmbeddingTray::isThere() const
{
    xcb_connection_t *x = connection();
    if (!x || m_selection == 0)
        return false;
    const auto reply =
        owned(xcb_get_selection_owner_reply(x, xcb_get_selection_owner(x, m_selection), nullptr));
    return reply && reply->owner != XCB_NONE;
}

// A new tray announces itself to the root window, whose events Qt receives for the same reason.
bool EmbeddingTray::nativeEventFilter(const QByteArray &type, void *event, qintptr *)
{
    if (type != "xcb_generic_event_t" || m_manager == 0)
        return false;
    const auto *generic = static_cast<const xcb_generic_event_t *>(event);
    if ((generic->response_type & 0x7f) != XCB_CLIENT_MESSAGE)
        return false;
    const auto *message = static_cast<const xcb_client_message_event_t *>(event);
    if (message->type == m_manager && message->data.data32[1] == m_selection)
        m_appeared();
    return false;
}

} // namespace moravel
