// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/session/NotificationPicture.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QStringList>
#include <QUrl>
#include <QVariantMap>

namespace moravel::testing {

/// A notification service whose abilities a test sets.
class FakeDaemon : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    struct Shown
    {
        QString application, icon, title, body;
        QStringList actions;
        QVariantMap hints;
        int timeout;

        NotificationPicture picture() const
        {
            return qdbus_cast<NotificationPicture>(hints.value(QStringLiteral("image-data")));
        }
    };

    explicit FakeDaemon(const QDBusConnection &bus, const QStringList &abilities)
        : capabilities(abilities), m_bus(bus)
    {
        m_bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
                             QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
        m_bus.registerService(Name);
    }

    ~FakeDaemon() override { m_bus.unregisterService(Name); }

    QStringList capabilities;
    bool broken = false; ///< Answers with errors.
    int asked = 0;
    QList<Shown> shown; ///< The n-th has the id n, from 1.

public Q_SLOTS:

    QStringList GetCapabilities()
    {
        ++asked;
        fail();
        return capabilities;
    }

    uint Notify(const QString &application, uint, const QString &icon, const QString &title,
                const QString &body, const QStringList &actions, const QVariantMap &hints,
                int timeout)
    {
        fail();
        shown.append({application, icon, title, body, actions, hints, timeout});
        return uint(shown.size());
    }

Q_SIGNALS:
    void ActionInvoked(uint id, const QString &action);
    void NotificationClosed(uint id, uint reason);

private:
    void fail()
    {
        if (broken)
            sendErrorReply(QDBusError::Failed, QStringLiteral("out of order"));
    }

    const QString Name = QStringLiteral("org.freedesktop.Notifications");
    QDBusConnection m_bus;
};

/// A file manager that notes what it shall show.
class FakeFileManager : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    explicit FakeFileManager(QDBusConnection bus)
    {
        bus.registerObject(QStringLiteral("/org/freedesktop/FileManager1"), this,
                           QDBusConnection::ExportAllSlots);
        bus.registerService(QStringLiteral("org.freedesktop.FileManager1"));
    }

    QStringList shown;

public Q_SLOTS:

    void ShowItems(const QStringList &urls, const QString &) { shown += urls; }
};

/// Takes the place of the program that opens folders.
class FakeOpener : public QObject
{
    Q_OBJECT

public:
    QList<QUrl> opened;

public Q_SLOTS:

    void open(const QUrl &url) { opened.append(url); }
};

} // namespace moravel::testing
