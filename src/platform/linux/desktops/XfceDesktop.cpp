// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/XfceDesktop.h"

#include "platform/linux/desktops/DesktopLog.h"
#include "platform/linux/desktops/FileUrls.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusReply>
#include <QTimer>

#include <limits>

namespace moravel {

namespace {

constexpr int FirstReadMs = 500; ///< How long the start may wait for the service.

// A change that reaches the desktop while it opens the file of the change before ends it, or makes it
// go on with the wrong file (xfdesktop 4.18). It has long opened it by then.
constexpr int PauseMs = 250;

QString service()
{
    return QStringLiteral("org.xfce.Xfconf");
}

QString objectPath()
{
    return QStringLiteral("/org/xfce/Xfconf");
}

QString channel()
{
    return QStringLiteral("xfce4-desktop");
}

QString shell()
{
    return QStringLiteral("org.xfce.xfdesktop");
}

QDBusMessage call(const char *method, const QVariantList &arguments)
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(service(), objectPath(), service(), QLatin1String(method));
    message.setArguments(arguments);
    return message;
}

} // namespace

/// A picture on its way to one screen.
struct XfceDesktop::Setting
{
    QString screen;
    QString path;
    std::function<void(tl::expected<void, DesktopError>)> done;
    qsizetype unanswered = 0;
    QString error; ///< The first one.

    void finish() const
    {
        if (error.isEmpty())
            done({});
        else
            done(tl::unexpected(DesktopError{screen, error}));
    }
};

XfceDesktop::XfceDesktop(std::unique_ptr<RootWatch> root)
    : m_bus(QDBusConnection::sessionBus()), m_root(std::move(root)), m_screens([this] {
        if (onScreensChanged)
            onScreensChanged();
    })
{
    // By path and interface: a rule on the service's name misses what it tells right after its start.
    m_bus.connect(QString(), objectPath(), service(), QStringLiteral("PropertyChanged"), this,
                  SLOT(onPropertyChanged(QString, QString, QDBusVariant)));
    m_bus.connect(QString(), objectPath(), service(), QStringLiteral("PropertyRemoved"), this,
                  SLOT(onPropertyRemoved(QString, QString)));
    m_services.setConnection(m_bus);
    m_services.setWatchMode(QDBusServiceWatcher::WatchForRegistration);
    m_services.addWatchedService(service());
    m_services.addWatchedService(shell());
    connect(&m_services, &QDBusServiceWatcher::serviceRegistered, this,
            [this](const QString &name) {
                if (name == service())
                    load(QDBus::NoBlock);
                else if (onScreensChanged)
                    onScreensChanged();
            });
    load(QDBus::Block);
}

QList<QByteArray> XfceDesktop::rootProperties()
{
    return {"_NET_NUMBER_OF_DESKTOPS", "_NET_CURRENT_DESKTOP"};
}

void XfceDesktop::load(QDBus::CallMode mode)
{
    const QDBusMessage message = call("GetAllProperties", {channel(), QStringLiteral("/backdrop")});
    if (mode == QDBus::Block) {
        const QDBusReply<QVariantMap> reply = m_bus.call(message, QDBus::Block, FirstReadMs);
        if (reply.isValid()) {
            m_properties = reply.value();
            return;
        }
        qCInfo(desktopsLog) << "no settings of XFCE yet:" << reply.error().message();
    }
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<QVariantMap> reply = *watcher;
        if (reply.isValid())
            m_properties = reply.value();
    });
}

void XfceDesktop::onPropertyChanged(const QString &of, const QString &property,
                                    const QDBusVariant &value)
{
    if (of == channel() && property.startsWith(QLatin1String("/backdrop/")))
        m_properties[property] = value.variant();
}

void XfceDesktop::onPropertyRemoved(const QString &of, const QString &property)
{
    if (of == channel())
        m_properties.remove(property);
}

int XfceDesktop::rootNumber(const char *property, int otherwise) const
{
    const auto value = m_root ? m_root->value(property) : std::nullopt;
    return value && *value <= quint32(std::numeric_limits<int>::max()) ? int(*value) : otherwise;
}

QString XfceDesktop::desktopImageUrl(const QString &screen) const
{
    return xfce::imageUrl(m_properties, screen, rootNumber("_NET_CURRENT_DESKTOP", 0));
}

void XfceDesktop::setDesktopImageUrl(const QString &url, const QString &screen,
                                     DesktopScaling scaling,
                                     std::function<void(tl::expected<void, DesktopError>)> done)
{
    const auto setting = std::make_shared<Setting>();
    *setting = {screen, pathOfUrl(url), std::move(done), 0, {}};
    if (setting->path.isEmpty() || !m_screens.has(screen)) {
        setting->error = QStringLiteral("There is no such screen or file.");
        QMetaObject::invokeMethod(
            this, [setting] { setting->finish(); }, Qt::QueuedConnection);
        return;
    }
    tellOfCycling(screen);
    const auto changes = xfce::changesFor(
        m_properties, screen,
        {rootNumber("_NET_NUMBER_OF_DESKTOPS", 1), rootNumber("_NET_CURRENT_DESKTOP", 0)},
        setting->path, scaling);
    setting->unanswered = changes.size();
    if (changes.isEmpty())
        return verify(setting);
    const bool hasStyle = changes[0].property.endsWith(QLatin1String("/image-style"));
    send(setting, changes.mid(0, hasStyle ? 1 : -1));
    if (hasStyle && changes.size() > 1)
        QTimer::singleShot(PauseMs, this,
                           [this, setting, rest = changes.mid(1)] { send(setting, rest); });
}

void XfceDesktop::send(const std::shared_ptr<Setting> &setting, const QList<xfce::Change> &changes)
{
    for (const xfce::Change &change : changes) {
        const QDBusMessage message =
            call("SetProperty",
                 {channel(), change.property, QVariant::fromValue(QDBusVariant(change.value))});
        auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
        connect(watcher, &QDBusPendingCallWatcher::finished, this,
                [this, watcher, setting, change] {
                    watcher->deleteLater();
                    if (watcher->isError() && setting->error.isEmpty())
                        setting->error = watcher->error().message();
                    if (!watcher->isError())
                        m_properties[change.property] = change.value;
                    if (--setting->unanswered == 0)
                        QTimer::singleShot(PauseMs, this, [this, setting] { verify(setting); });
                });
    }
}

void XfceDesktop::verify(const std::shared_ptr<Setting> &setting)
{
    const int shown = xfce::shownWorkspace(m_properties, rootNumber("_NET_CURRENT_DESKTOP", 0));
    const QDBusMessage message =
        call("GetProperty", {channel(), xfce::property(setting->screen, shown, "last-image")});
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, setting] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (setting->error.isEmpty() && reply.isError())
            setting->error = reply.error().message();
        else if (setting->error.isEmpty() && reply.value().variant().toString() != setting->path)
            setting->error = QStringLiteral("The desktop did not keep the picture.");
        setting->finish();
    });
}

void XfceDesktop::tellOfCycling(const QString &screen)
{
    if (m_toldOfCycling
        || !xfce::isCycling(m_properties, screen, rootNumber("_NET_CURRENT_DESKTOP", 0)))
        return;
    m_toldOfCycling = true;
    qCInfo(desktopsLog)
        << "XFCE itself changes the picture of" << screen
        << "from a folder and will replace ours; its desktop settings switch that off";
}

} // namespace moravel
