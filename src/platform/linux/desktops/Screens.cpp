// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/Screens.h"

#include <QDBusConnection>
#include <QGuiApplication>
#include <QScreen>

namespace moravel {

namespace {

constexpr int SettleMs =
    250; ///< Plugging in a screen moves and resizes the others one after another.

DesktopScreen describe(const QScreen &screen)
{
    const QSizeF size = QSizeF(screen.geometry().size()) * screen.devicePixelRatio();
    return {screen.name(), size.toSize(), &screen == QGuiApplication::primaryScreen()};
}

} // namespace

Screens::Screens(std::function<void()> changed) : m_changed(std::move(changed))
{
    m_settle.setSingleShot(true);
    m_settle.setInterval(SettleMs);
    connect(&m_settle, &QTimer::timeout, this, [this] { m_changed(); });
    const auto settle = [this] { m_settle.start(); };
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen *screen) {
        follow(screen);
        m_settle.start();
    });
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, settle);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, settle);
    for (QScreen *screen : QGuiApplication::screens())
        follow(screen);
    // Without a system bus or a session manager there is nobody to tell, and nothing is lost.
    QDBusConnection::systemBus().connect(
        QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
        QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"), this,
        SLOT(onPrepareForSleep(bool)));
}

void Screens::follow(QScreen *screen)
{
    connect(screen, &QScreen::geometryChanged, this, [this] { m_settle.start(); });
}

void Screens::onPrepareForSleep(bool starting)
{
    if (!starting)
        m_settle.start();
}

QList<DesktopScreen> Screens::list() const
{
    QList<DesktopScreen> list;
    for (const QScreen *screen : QGuiApplication::screens()) {
        if (!screen->name().isEmpty()) // a placeholder while no screen is connected
            list.append(describe(*screen));
    }
    return list;
}

bool Screens::has(const QString &id) const
{
    const QList<DesktopScreen> all = list();
    return std::any_of(all.begin(), all.end(), [&](const DesktopScreen &s) { return s.id == id; });
}

} // namespace moravel
