// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/desktops/FileFollower.h"
#include "platform/linux/desktops/GSettingsKeys.h"
#include "platform/linux/desktops/LookRules.h"

#include <QDBusConnection>
#include <QDBusVariant>

namespace moravel {

/// Follows how the user wants programs to look: with or without motion, light or dark. Starts no service;
/// where nothing is told, things move and are as light as Qt has them.
class LookSettings : public QObject
{
    Q_OBJECT

public:
    explicit LookSettings(const QDBusConnection &sessionBus);

    const DesktopLook &look() const { return m_look; }

    std::function<void()> onChanged;

private Q_SLOTS:
    void settingChanged(const QString &space, const QString &key, const QDBusVariant &value);

private:
    void askPortal();
    void read();

    QDBusConnection m_bus;
    GSettingsKeys m_gnome;
    FileFollower m_kde;
    QMap<QString, QVariantMap> m_portal;
    DesktopLook m_look;
};

} // namespace moravel
