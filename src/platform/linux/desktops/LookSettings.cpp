// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/LookSettings.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QSettings>
#include <QStandardPaths>

#include <utility>

namespace moravel {

namespace {

const QString Service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString Path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString Interface = QStringLiteral("org.freedesktop.portal.Settings");
const QStringList Spaces{QStringLiteral("org.freedesktop.appearance"),
                         QStringLiteral("org.gnome.desktop.interface"),
                         QStringLiteral("org.kde.kdeglobals.KDE")};

QString kdeFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/kdeglobals");
}

std::optional<QString> kdeFactor(const QString &file)
{
    const QSettings settings(file, QSettings::IniFormat);
    const QVariant value = settings.value(QStringLiteral("KDE/AnimationDurationFactor"));
    return value.isValid() ? std::optional(value.toString()) : std::nullopt;
}

} // namespace

LookSettings::LookSettings(const QDBusConnection &sessionBus)
    : m_bus(sessionBus)
    , m_gnome(QStringLiteral("org.gnome.desktop.interface"))
    , m_kde(kdeFile(), [this] { read(); })
{
    m_gnome.onChanged = [this] { read(); };
    // Without a sender's name, since Qt would wait for the bus to resolve it.
    m_bus.connect({}, Path, Interface, QStringLiteral("SettingChanged"), this,
                  SLOT(settingChanged(QString, QString, QDBusVariant)));
    read();
    askPortal();
}

void LookSettings::askPortal()
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(Service, Path, Interface, QStringLiteral("ReadAll"));
    call.setArguments({Spaces});
    call.setAutoStartService(false);
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusMessage answer = watcher->reply();
        if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != u"a{sa{sv}}")
            return; // no portal, or one without settings
        m_portal = qdbus_cast<QMap<QString, QVariantMap>>(answer.arguments().constFirst());
        read();
    });
}

void LookSettings::settingChanged(const QString &space, const QString &key,
                                  const QDBusVariant &value)
{
    if (!Spaces.contains(space))
        return;
    m_portal[space].insert(key, value.variant());
    read();
}

void LookSettings::read()
{
    LookReading reading;
    reading.gnomeAnimations = m_gnome.flag("enable-animations");
    reading.gnomeScheme = m_gnome.text("color-scheme");
    reading.kdeFactor = kdeFactor(m_kde.path());
    reading.portal = m_portal;
    if (const DesktopLook now = lookFrom(reading); std::exchange(m_look, now) == now)
        return;
    if (onChanged)
        onChanged();
}

} // namespace moravel
