// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"
#include "platform/linux/desktops/FileFollower.h"
#include "platform/linux/desktops/FileManagers.h"
#include "platform/linux/desktops/ScaledCopies.h"
#include "platform/linux/desktops/Screens.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QProcess>
#include <QTimer>

#include <deque>

namespace moravel {

/// The picture of a desktop that is painted by its file manager: one for all screens. Setting starts the
/// file manager's command, one at a time; reading follows its settings file.
class FileManagerPictures : public QObject, public DesktopPictures
{
    Q_OBJECT

public:
    /// @param copyFolder where cut copies of pictures are kept, for the desktops that need them.
    FileManagerPictures(const FileManagerDesktop &desktop, const QString &configFolder,
                        const QString &copyFolder);
    ~FileManagerPictures() override;

    QString name() const override { return QString::fromLatin1(m_desktop.name); }

    DesktopAbilities abilities() const override { return {}; }

    QList<DesktopScreen> screens() const override { return m_screens.list(); }

    QString desktopImageUrl(const QString &screen) const override;
    void setDesktopImageUrl(const QString &url, const QString &screen, DesktopScaling scaling,
                            std::function<void(tl::expected<void, DesktopError>)> done) override;

private:
    struct Job
    {
        QString path; ///< As it is to be spelled; empty when it cannot be set.
        QString refusal;
        DesktopScaling scaling;
        std::function<void(tl::expected<void, DesktopError>)> done;
        int checks = 0;
    };

    void add(Job job);
    void startNext();
    void hand(const QString &file);
    void startCommand();
    void onEnded();
    void check();
    void finish(QString failure);
    void refresh();
    QString spelling(const QString &path) const;

    const FileManagerDesktop &m_desktop;
    Screens m_screens;
    FileFollower m_settings;
    QDBusServiceWatcher m_service;
    std::unique_ptr<ScaledCopies> m_copies; ///< Null where the desktop fills screens by itself.
    FileManagerReading m_reading;
    QString m_url;
    QByteArray m_stamp; ///< The file that was last set, as it was then.
    std::deque<Job> m_jobs; ///< The first one is being done while m_isBusy.
    bool m_isBusy = false;
    QProcess m_process;
    QTimer m_deadline;
    QTimer m_check; ///< The settings are written a moment after the command has ended.
};

} // namespace moravel
