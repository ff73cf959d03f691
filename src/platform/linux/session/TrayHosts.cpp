// SPDX-License-Identifier: MIT
#include "platform/linux/session/TrayHosts.h"

namespace moravel {

namespace {

constexpr double Patience = 2; // seconds between the two announcements of one panel, at most

} // namespace

TrayHosts::TrayHosts(const QDBusConnection &sessionBus, MainLoop &loop)
    : m_loop(loop), m_watcher(sessionBus, QStringLiteral("org.kde.StatusNotifierWatcher"))
{
    connect(&m_watcher, &BusName::ownerChanged, this, [this] {
        if (m_watcher.isOwned())
            find(TrayKind::StatusNotifier);
    });
}

void TrayHosts::embeddingTrayIsThere()
{
    if (!m_found)
        m_patience = m_loop.after(Patience, [this] { find(TrayKind::Embedded); });
}

void TrayHosts::find(TrayKind kind)
{
    if (std::exchange(m_found, true))
        return;
    Q_EMIT found(kind);
}

} // namespace moravel
