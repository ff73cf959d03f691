// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Workspace.h"

#include <QDBusConnection>
#include <QList>
#include <QObject>

class QProcess;

namespace moravel {

/// Opens the settings with the program's own script, and shows files through
/// org.freedesktop.FileManager1, or by opening their folder where no file manager offers that.
class LinuxWorkspace : public QObject, public Workspace
{
    Q_OBJECT

public:
    /// @p script is the resource that opens the settings; it runs in `/bin/sh`.
    explicit LinuxWorkspace(const QDBusConnection &sessionBus,
                            QString script = QStringLiteral(":/moravel/DesktopPrefsScript.txt"));
    ~LinuxWorkspace() override;

    /// While the script runs, a further call waits for the same result.
    void openDesktopSettings(std::function<void(const QString &error)> done) override;
    void revealInFileManager(const QString &path) override;

private:
    void runScript();
    void scriptEnded(const QString &error);
    QString errorOf(QProcess &process) const;

    QDBusConnection m_bus;
    QString m_script;
    QProcess *m_process = nullptr; ///< The script while it runs.
    QList<std::function<void(const QString &)>> m_done;
};

} // namespace moravel
