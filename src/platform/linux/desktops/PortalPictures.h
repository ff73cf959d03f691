// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"
#include "platform/linux/PortalRequest.h"
#include "platform/linux/desktops/DesktopRecord.h"
#include "platform/linux/desktops/Screens.h"

#include <QDBusConnection>

namespace moravel {

/// The desktop's portal, for programs in a sandbox and as the last resort: one picture for all screens, laid
/// out as the desktop likes. The desktop may ask the user first. It cannot be asked what it shows, so a
/// record says what this program has set last.
class PortalPictures : public DesktopPictures
{
public:
    /// @param recordPath the file that keeps what was set.
    PortalPictures(Files &files, const QString &recordPath,
                   const QDBusConnection &bus = QDBusConnection::sessionBus());

    /// Tells whether a portal runs or can be started. Waits for the bus (not for the portal).
    static bool isThere(const QDBusConnection &bus = QDBusConnection::sessionBus());

    QString name() const override { return QStringLiteral("the desktop portal"); }

    DesktopAbilities abilities() const override { return {}; }

    QList<DesktopScreen> screens() const override { return m_screens.list(); }

    QString desktopImageUrl(const QString &screen) const override;
    void setDesktopImageUrl(const QString &url, const QString &screen, DesktopScaling scaling,
                            std::function<void(tl::expected<void, DesktopError>)> done) override;

private:
    using Done = std::function<void(tl::expected<void, DesktopError>)>;

    void take(const QString &path, const PortalRequest::Answer &answer, const Done &done);

    DesktopRecordFile m_file;
    DesktopRecord m_record;
    Screens m_screens;
    bool m_toldScaling = false;
    PortalRequest m_portal;
};

} // namespace moravel
