// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"
#include "platform/linux/desktops/Screens.h"

#include <QHash>
#include <QObject>

namespace moravel {

/// Hyprland, through the program hyprpaper: over its socket, or with hyprctl where a newer one speaks
/// another protocol there. It tells what it shows when it is asked, which happens at the start, after each
/// set and when screens change; what others set in between is not seen.
class HyprlandPictures : public QObject, public DesktopPictures
{
    Q_OBJECT

public:
    /// @param socket hyprpaper's socket file.
    explicit HyprlandPictures(QString socket);

    QString name() const override { return QStringLiteral("Hyprland"); }

    DesktopAbilities abilities() const override { return {.perScreen = true}; }

    QList<DesktopScreen> screens() const override { return m_screens.list(); }

    QString desktopImageUrl(const QString &screen) const override;
    void setDesktopImageUrl(const QString &url, const QString &screen, DesktopScaling scaling,
                            std::function<void(tl::expected<void, DesktopError>)> done) override;

private:
    struct Job
    {
        QString path;
        QString screen;
        DesktopScaling scaling;
        QList<QByteArray> requests; ///< Still to be sent.
        std::function<void(tl::expected<void, DesktopError>)> done;
    };

    void askShown(const std::function<void()> &then);
    void sendNext(Job job);
    void runHyprctl(const Job &job);
    void finish(const Job &job, const QString &error);

    QString m_socket;
    QHash<QString, QString> m_shown; ///< Paths by screen.
    QHash<QString, QByteArray> m_stamps; ///< By path: the file as it was when it was set.
    Screens m_screens;
    bool m_toldScaling = false;
};

} // namespace moravel
