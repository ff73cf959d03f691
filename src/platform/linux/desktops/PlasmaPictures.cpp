// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/PlasmaPictures.h"

#include "platform/linux/desktops/DesktopLog.h"
#include "platform/linux/desktops/FileStamp.h"
#include "platform/linux/desktops/FileUrls.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>
#include <QStandardPaths>

namespace moravel {

namespace {

constexpr int CallMs = 10'000;
constexpr int RestartMs = 300;
constexpr int RestartAttempts = 60;
constexpr int ScreenAttempts = 3;

const QString Service = QStringLiteral("org.kde.plasmashell");

QString settingsFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QLatin1String("/plasma-org.kde.plasma.desktop-appletsrc");
}

std::optional<QPoint> cornerOf(const QString &screen)
{
    for (const QScreen *one : QGuiApplication::screens()) {
        if (one->name() == screen)
            return one->geometry().topLeft();
    }
    return std::nullopt;
}

} // namespace

PlasmaPictures::PlasmaPictures(const QDBusConnection &bus)
    : m_bus(bus)
    , m_screens([this] {
        m_attempts = ScreenAttempts;
        startAnew();
    })
    , m_shell(Service, bus, QDBusServiceWatcher::WatchForRegistration)
    , m_settings(settingsFile(), [this] { refresh(); })
{
    m_restart.setSingleShot(true);
    m_restart.setInterval(RestartMs);
    connect(&m_restart, &QTimer::timeout, this, &PlasmaPictures::startAnew);
    connect(&m_shell, &QDBusServiceWatcher::serviceRegistered, this, [this] {
        m_attempts = RestartAttempts;
        m_restart.start();
    });
    // Version 6 tells; where there is no such signal, this never comes.
    m_bus.connect(Service, QStringLiteral("/PlasmaShell"), QStringLiteral("org.kde.PlasmaShell"),
                  QStringLiteral("wallpaperChanged"), this, SLOT(refresh()));
    refresh();
}

QString PlasmaPictures::desktopImageUrl(const QString &screen) const
{
    return m_shown.value(screen).url;
}

void PlasmaPictures::setDesktopImageUrl(const QString &url, const QString &screen,
                                        DesktopScaling scaling, Done done)
{
    const auto refuse = [this, screen, done](const char *sentence) {
        const DesktopError error{screen, QString::fromLatin1(sentence)};
        QMetaObject::invokeMethod(
            this, [done, error] { done(tl::make_unexpected(error)); }, Qt::QueuedConnection);
    };
    const QString path = pathOfUrl(url);
    const auto corner = cornerOf(screen);
    if (!QFileInfo(path).isFile())
        return refuse("The picture is not a file.");
    if (!corner)
        return refuse("The screen is not connected.");
    if (m_shown.value(screen).path.endsWith(u'/'))
        qCInfo(desktopsLog, "Plasma changed the picture by itself; it no longer does");
    const QByteArray stamp = fileStamp(path);
    const QString image = spelling(path, screen);
    m_stamps.insert(screen, stamp);
    run(plasmaSetScript(*corner, image, scaling), [=, this](const Answer &answer) {
        if (answer)
            return verify(screen, path, done);
        m_stamps.remove(screen);
        done(tl::make_unexpected(DesktopError{screen, answer.error()}));
    });
}

void PlasmaPictures::verify(const QString &screen, const QString &path, const Done &done)
{
    // A script sees what it changed only after its end.
    run(plasmaReadScript(), [this, screen, path, done](const Answer &answer) {
        if (!answer)
            return done(tl::make_unexpected(DesktopError{screen, answer.error()}));
        keep(*answer);
        if (m_shown.value(screen).path == path)
            return done({});
        done(tl::make_unexpected(DesktopError{
            screen, QStringLiteral("The desktop did not keep the picture that it was given.")}));
    });
}

QString PlasmaPictures::spelling(const QString &path, const QString &screen) const
{
    const QString usual = plasmaImage(path, false);
    const Shown shown = m_shown.value(screen);
    if (shown.path != path)
        return usual;
    if (m_stamps.value(screen) == fileStamp(path))
        return shown.image; // nothing changed: not even a flicker
    return shown.image == usual ? plasmaImage(path, true) : usual;
}

void PlasmaPictures::run(const QString &script, std::function<void(const Answer &)> done)
{
    auto call = QDBusMessage::createMethodCall(Service, QStringLiteral("/PlasmaShell"),
                                               QStringLiteral("org.kde.PlasmaShell"),
                                               QStringLiteral("evaluateScript"));
    call.setAutoStartService(false);
    call << script;
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call, CallMs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, done] {
        watcher->deleteLater();
        const QDBusPendingReply<QString> reply = *watcher;
        if (reply.isError()) {
            done(tl::make_unexpected(reply.error().message().section(u'\n', 0, 0)));
            return;
        }
        const auto desktops = parsePlasmaDesktops(reply.value());
        if (desktops)
            done(*desktops);
        else
            done(tl::make_unexpected(QStringLiteral("The desktop's answer was not understood.")));
    });
}

void PlasmaPictures::refresh()
{
    run(plasmaReadScript(), [this](const Answer &answer) {
        if (answer)
            keep(*answer);
        else
            qCInfo(desktopsLog, "Plasma's pictures cannot be read: %s",
                   qUtf8Printable(answer.error()));
    });
}

void PlasmaPictures::keep(const QList<PlasmaDesktop> &desktops)
{
    m_shown.clear();
    for (const QScreen *screen : QGuiApplication::screens()) {
        for (const PlasmaDesktop &desktop : desktops) {
            if (desktop.corner != screen->geometry().topLeft())
                continue;
            const QString path = plasmaShownPath(desktop);
            m_shown.insert(screen->name(), {desktop.image, path, fileUrl(path)});
        }
    }
}

void PlasmaPictures::startAnew()
{
    run(plasmaReadScript(), [this](const Answer &answer) {
        if (answer)
            keep(*answer);
        // The shell answers before its desktops are there, and may be a moment behind the screens.
        if (m_shown.size() < m_screens.list().size() && m_attempts-- > 0)
            return m_restart.start();
        m_attempts = 0;
        if (onScreensChanged)
            onScreensChanged();
    });
}

} // namespace moravel
