// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/PortalPictures.h"

#include "platform/linux/desktops/DesktopLog.h"
#include "platform/linux/desktops/FileUrls.h"

#include <QDBusConnectionInterface>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QScopeGuard>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace moravel {

namespace {

const QString Wallpaper = QStringLiteral("org.freedesktop.portal.Wallpaper");
const QString AllScreens = QStringLiteral("all"); // key in the record

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

QString reason(const PortalError &error)
{
    switch (error.kind) {
    case PortalError::Cancelled:
        return QStringLiteral("The desktop was not allowed to take the picture.");
    case PortalError::Superseded:
        return QStringLiteral("Another picture came first.");
    case PortalError::Failed:
        return error.text;
    case PortalError::Ended:
        break;
    }
    return QStringLiteral("The desktop portal did not take the picture.");
}

} // namespace

PortalPictures::PortalPictures(Files &files, const QString &recordPath, const QDBusConnection &bus)
    : m_file(files, recordPath)
    , m_record(m_file.read())
    , m_screens([] {}) // the desktop lays its picture out anew by itself
    , m_portal(bus)
{ }

bool PortalPictures::isThere(const QDBusConnection &bus)
{
    if (!bus.isConnected())
        return false;
    const QDBusConnectionInterface *daemon = bus.interface();
    return daemon->isServiceRegistered(PortalRequest::service())
        || daemon->activatableServiceNames().value().contains(PortalRequest::service());
}

QString PortalPictures::desktopImageUrl(const QString &) const
{
    return fileUrl(m_record.screens.value(AllScreens).path);
}

void PortalPictures::setDesktopImageUrl(const QString &url, const QString &screen,
                                        DesktopScaling scaling, Done done)
{
    const QString path = pathOfUrl(url);
    const int file = openPicture(path);
    const auto closeFile = qScopeGuard([file] { ::close(file); });
    if (file < 0) {
        const auto refuse = [screen, done = std::move(done)] {
            done(tl::unexpected(
                DesktopError{screen, QStringLiteral("The picture cannot be read.")}));
        };
        QMetaObject::invokeMethod(&m_portal, refuse, Qt::QueuedConnection);
        return;
    }
    if (scaling != DesktopScaling::Fill && !std::exchange(m_toldScaling, true))
        qCInfo(desktopsLog) << "through the portal, the desktop lays pictures out as it likes";
    const QString noWindow;
    m_portal.ask(
        Wallpaper, QStringLiteral("SetWallpaperFile"),
        {noWindow, QVariant::fromValue(QDBusUnixFileDescriptor(file))},
        {{QStringLiteral("show-preview"), false},
         {QStringLiteral("set-on"), QStringLiteral("background")}},
        [this, path, done](const PortalRequest::Answer &answer) { take(path, answer, done); });
}

void PortalPictures::take(const QString &path, const PortalRequest::Answer &answer,
                          const Done &done)
{
    if (!answer)
        return done(tl::unexpected(DesktopError{{}, reason(answer.error())}));
    m_record.screens[AllScreens].path = path;
    m_file.write(m_record);
    done({});
}

} // namespace moravel
