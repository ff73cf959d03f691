// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/desktops/FullScreenWatch.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QTemporaryFile>

namespace moravel {

/// Follows the active window of KDE's compositor, versions 5 and 6, by a script of ours that runs inside of
/// it and reports over the session bus.
class PlasmaFullScreen : public QObject, public FullScreenWatch, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.moravel.FullScreen1")

public:
    explicit PlasmaFullScreen(qint64 self,
                              const QDBusConnection &bus = QDBusConnection::sessionBus());
    ~PlasmaFullScreen() override;

public Q_SLOTS:
    /// Called by the script.
    Q_SCRIPTABLE void tell(bool fullScreen);

private:
    void load();

    QDBusConnection m_bus;
    QString m_name; ///< Of the script.
    QString m_path; ///< Of the object that it calls.
    QTemporaryFile m_script; ///< The compositor reads it.
    QDBusServiceWatcher m_compositor;
};

} // namespace moravel
