// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"
#include "platform/linux/desktops/FileFollower.h"
#include "platform/linux/desktops/PlasmaScripts.h"
#include "platform/linux/desktops/Screens.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QHash>
#include <QObject>
#include <QTimer>

namespace moravel {

/// KDE's shell, versions 5 and 6, through its scripting interface on the session bus. Each screen has a
/// picture of its own. What is shown is asked for at the start, with each set, and when the shell's
/// settings file changes; the answers are kept.
class PlasmaPictures : public QObject, public DesktopPictures
{
    Q_OBJECT

public:
    explicit PlasmaPictures(const QDBusConnection &bus = QDBusConnection::sessionBus());

    QString name() const override { return QStringLiteral("KDE Plasma"); }

    DesktopAbilities abilities() const override { return {.perScreen = true}; }

    QList<DesktopScreen> screens() const override { return m_screens.list(); }

    QString desktopImageUrl(const QString &screen) const override;
    void setDesktopImageUrl(const QString &url, const QString &screen, DesktopScaling scaling,
                            std::function<void(tl::expected<void, DesktopError>)> done) override;

private:
    using Done = std::function<void(tl::expected<void, DesktopError>)>;
    using Answer = tl::expected<QList<PlasmaDesktop>, QString>;

    /// What a screen shows.
    struct Shown
    {
        QString image; ///< As the shell spells it.
        QString path;
        QString url;
    };

    void run(const QString &script, std::function<void(const Answer &)> done);
    void verify(const QString &screen, const QString &path, const Done &done);
    void keep(const QList<PlasmaDesktop> &desktops);
    void startAnew();
    QString spelling(const QString &path, const QString &screen) const;

private Q_SLOTS:
    void refresh();

private:
    QDBusConnection m_bus;
    QHash<QString, Shown> m_shown; ///< By screen.
    QHash<QString, QByteArray> m_stamps; ///< By screen: the file that was last set, as it was then.
    Screens m_screens;
    QDBusServiceWatcher m_shell;
    FileFollower m_settings;
    QTimer m_restart;
    int m_attempts = 0; ///< Left to ask a shell that is still starting.
};

} // namespace moravel
