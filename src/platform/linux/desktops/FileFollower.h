// SPDX-License-Identifier: MIT
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <functional>

namespace moravel {

/// Tells when a small settings file has changed, also when it is replaced, removed, or not there yet.
class FileFollower : public QObject
{
    Q_OBJECT

public:
    /// @param changed called once a sixth of a second after the last of a row of changes; never from
    /// within.
    FileFollower(const QString &path, std::function<void()> changed);

    QString path() const { return m_path; }

private:
    void watch();
    void leaveFolders();

    QString m_path;
    QFileSystemWatcher m_watcher;
    QTimer m_settle;
};

} // namespace moravel
