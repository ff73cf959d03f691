// SPDX-License-Identifier: MIT
#pragma once

#include "support/Test.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QProcess>

namespace moravel::testing {

/// A message bus of the test's own, on which no service can be started.
class PrivateBus
{
public:
    PrivateBus()
    {
        QFile config(m_folder.filePath(u"bus.conf"_s));
        EXPECT_TRUE(config.open(QIODevice::WriteOnly));
        config.write("<busconfig><type>session</type><listen>unix:dir=" + m_folder.path().toUtf8()
                     + "</listen><policy context=\"default\"><allow send_destination=\"*\" "
                       "eavesdrop=\"true\"/><allow eavesdrop=\"true\"/>"
                       "<allow own=\"*\"/></policy></busconfig>");
        config.close();
        m_daemon.start(
            u"dbus-daemon"_s,
            {u"--config-file="_s + config.fileName(), u"--nofork"_s, u"--print-address"_s});
        while (!m_daemon.canReadLine() && m_daemon.waitForReadyRead()) { }
        m_address = QString::fromUtf8(m_daemon.readLine().trimmed());
        EXPECT_FALSE(m_address.isEmpty()) << qPrintable(m_daemon.errorString());
    }

    ~PrivateBus()
    {
        for (const QString &name : std::as_const(m_names))
            QDBusConnection::disconnectFromBus(name);
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    Q_DISABLE_COPY_MOVE(PrivateBus)

    /// Another participant of the bus.
    QDBusConnection connection()
    {
        static int number = 0;
        m_names.append(u"test%1"_s.arg(++number));
        return QDBusConnection::connectToBus(m_address, m_names.last());
    }

    QString address() const { return m_address; }

    /// Returns when the bus has passed on all that @p sender sent before.
    static void flush(const QDBusConnection &sender)
    {
        sender.interface()->isServiceRegistered(u"org.freedesktop.DBus"_s);
    }

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
    QStringList m_names;
};

} // namespace moravel::testing
