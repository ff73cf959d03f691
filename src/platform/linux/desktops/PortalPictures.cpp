// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/PortalPictures.h"

#include "platform/linux/desktops/DesktopLog.h"
#include "platform/linux/desktops/FileUrls.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QScopeGuard>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace moravel {

namespace {

const QString Service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString Path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString Wallpaper = QStringLiteral("org.freedesktop.portal.Wallpaper");
const QString RequestInterface = QStringLiteral("org.freedesktop.portal.Request");
const QString AllScreens = QStringLiteral("all"); // key in the record

constexpr int StartMs = 30'000; // the portal and what is behind it may have to be started

// A regular file, opened without waiting for anything; -1 if it is none.
int openPicture(const QString &path)
{
    const int file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    struct stat what = {};
    if (file >= 0 && (::fstat(file, &what) != 0 || !S_ISREG(what.st_mode))) {
        ::close(file);
        return -1;
    }
    return file;
}

// Where the portal answers a request of this connection with this token.
QString requestObject(const QDBusConnection &bus, const QString &token)
{
    QString sender = bus.baseService().mid(1);
    sender.replace(u'.', u'_');
    return Path + QStringLiteral("/request/%1/%2").arg(sender, token);
}

QString refusal(uint code)
{
    return code == 1 ? QStringLiteral("The desktop was not allowed to take the picture.")
                     : QStringLiteral("The desktop portal did not take the picture.");
}

} // namespace

PortalPictures::PortalPictures(Files &files, const QString &recordPath, const QDBusConnection &bus)
    : m_bus(bus)
    , m_file(files, recordPath)
    , m_record(m_file.read())
    , m_screens([] {}) // the desktop lays its picture out anew by itself
{
    // Of all requests: an answer may come before the object of its request is known.
    m_bus.connect(Service, {}, RequestInterface, QStringLiteral("Response"), this,
                  SLOT(response(uint, QVariantMap, QDBusMessage)));
}

bool PortalPictures::isThere(const QDBusConnection &bus)
{
    if (!bus.isConnected())
        return false;
    const QDBusConnectionInterface *daemon = bus.interface();
    return daemon->isServiceRegistered(Service)
        || daemon->activatableServiceNames().value().contains(Service);
}

QString PortalPictures::desktopImageUrl(const QString &) const
{
    return fileUrl(m_record.screens.value(AllScreens).path);
}

void PortalPictures::setDesktopImageUrl(const QString &url, const QString &screen,
                                        DesktopScaling scaling,
                                        std::function<void(tl::expected<void, DesktopError>)> done)
{
    const QString path = pathOfUrl(url);
    const int file = openPicture(path);
    const auto closeFile = qScopeGuard([file] { ::close(file); });
    if (file < 0) {
        const auto refuse = [screen, done = std::move(done)] {
            done(tl::unexpected(
                DesktopError{screen, QStringLiteral("The picture cannot be read.")}));
        };
        QMetaObject::invokeMethod(this, refuse, Qt::QueuedConnection);
        return;
    }
    if (scaling != DesktopScaling::Fill && !std::exchange(m_toldScaling, true))
        qCInfo(desktopsLog) << "through the portal, the desktop lays pictures out as it likes";
    giveUp();
    const QString token = QStringLiteral("moravel%1").arg(++m_requests);
    send({requestObject(m_bus, token), path, std::move(done)}, file);
}

void PortalPictures::send(const Request &request, int file)
{
    m_request = request;
    QDBusMessage message = QDBusMessage::createMethodCall(Service, Path, Wallpaper,
                                                          QStringLiteral("SetWallpaperFile"));
    const QString noWindow;
    message << noWindow << QVariant::fromValue(QDBusUnixFileDescriptor(file))
            << QVariantMap{{QStringLiteral("handle_token"), request.object.section(u'/', -1)},
                           {QStringLiteral("show-preview"), false},
                           {QStringLiteral("set-on"), QStringLiteral("background")}};
    auto *call = new QDBusPendingCallWatcher(m_bus.asyncCall(message, StartMs), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, object = request.object] {
        call->deleteLater();
        if (!m_request || m_request->object != object)
            return;
        const QDBusPendingReply<QDBusObjectPath> reply = *call;
        if (reply.isError())
            return end(reply.error().message());
        m_request->object = reply.value().path(); // very old portals choose it themselves
    });
}

void PortalPictures::response(uint code, const QVariantMap &, const QDBusMessage &message)
{
    if (m_request && message.path() == m_request->object)
        end(code == 0 ? QString() : refusal(code));
}

void PortalPictures::end(const QString &error)
{
    const Request request = *std::exchange(m_request, std::nullopt);
    if (!error.isEmpty())
        return request.done(tl::unexpected(DesktopError{{}, error}));
    m_record.screens[AllScreens].path = request.path;
    m_file.write(m_record);
    request.done({});
}

// The user may leave the desktop's question open for ever; the newest picture counts.
void PortalPictures::giveUp()
{
    if (!m_request)
        return;
    m_bus.send(QDBusMessage::createMethodCall(Service, m_request->object, RequestInterface,
                                              QStringLiteral("Close")));
    QMetaObject::invokeMethod(
        this,
        [done = m_request->done] {
            done(tl::unexpected(DesktopError{{}, QStringLiteral("Another picture came first.")}));
        },
        Qt::QueuedConnection);
    m_request.reset();
}

} // namespace moravel
