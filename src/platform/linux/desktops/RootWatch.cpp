// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/RootWatch.h"

#include "platform/linux/desktops/DesktopLog.h"

namespace moravel {

std::unique_ptr<RootWatch> RootWatch::start(const QList<QByteArray> &properties)
{
    std::optional<x11::Display> display = x11::openDisplay();
    if (!display)
        return nullptr;
    return std::unique_ptr<RootWatch>(new RootWatch(std::move(*display), properties));
}

RootWatch::RootWatch(x11::Display display, const QList<QByteArray> &properties)
    : m_display(std::move(display))
{
    xcb_connection_t *c = m_display.connection.get();
    const quint32 mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(c, m_display.screen->root, XCB_CW_EVENT_MASK, &mask);
    for (const QByteArray &name : properties)
        m_properties[x11::atom(c, name)] = {name, std::nullopt};
    refresh();
    m_readable =
        std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(c), QSocketNotifier::Read);
    QObject::connect(m_readable.get(), &QSocketNotifier::activated, m_readable.get(),
                     [this] { readEvents(); });
}

void RootWatch::refresh()
{
    for (auto &[name, property] : m_properties)
        property.value = x11::windowValue(m_display.connection.get(), m_display.screen->root, name);
    while (x11::Reply<xcb_generic_event_t>(xcb_poll_for_event(m_display.connection.get()))) { }
}

void RootWatch::remove(const QByteArray &property)
{
    for (auto &[name, known] : m_properties) {
        if (known.name != property)
            continue;
        known.value.reset();
        xcb_delete_property(m_display.connection.get(), m_display.screen->root, name);
        xcb_flush(m_display.connection.get());
    }
}

std::optional<quint32> RootWatch::value(const QByteArray &property) const
{
    for (const auto &[atom, known] : m_properties) {
        if (known.name == property)
            return known.value;
    }
    return std::nullopt;
}

void RootWatch::readEvents()
{
    xcb_connection_t *c = m_display.connection.get();
    while (const x11::Reply<xcb_generic_event_t> event{xcb_poll_for_event(c)}) {
        if ((event->response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
            continue;
        const auto *change = reinterpret_cast<const xcb_property_notify_event_t *>(event.get());
        const auto known = m_properties.find(change->atom);
        if (known == m_properties.end())
            continue;
        known->second.value = x11::windowValue(c, m_display.screen->root, change->atom);
        if (onChanged)
            onChanged(known->second.name);
    }
    if (xcb_connection_has_error(c)) {
        qCWarning(desktopsLog) << "the connection to the X display is lost";
        m_readable->setEnabled(false); // a closed socket is readable for ever
    }
}

} // namespace moravel
