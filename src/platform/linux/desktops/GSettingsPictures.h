// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"
#include "platform/linux/desktops/GSettingsDesktops.h"
#include "platform/linux/desktops/GSettingsKeys.h"
#include "platform/linux/desktops/ScaledCopies.h"
#include "platform/linux/desktops/Screens.h"

#include <QObject>
#include <QThreadPool>

#include <memory>

namespace moravel {

/// The picture of a desktop that keeps it in GSettings: one for all screens. Reads from memory, which
/// the keys' change notifications renew.
class GSettingsPictures : public DesktopPictures
{
public:
    /// @param copyFolder where screen-sized copies of large pictures are kept, for the desktops that
    /// need them.
    GSettingsPictures(const GSettingsDesktop &desktop, const QString &copyFolder);

    /// Tells whether the desktop's settings are installed at all.
    bool isUsable() const;

    QString name() const override { return QString::fromLatin1(m_desktop.name); }

    DesktopAbilities abilities() const override { return {}; }

    QList<DesktopScreen> screens() const override { return m_screens.list(); }

    QString desktopImageUrl(const QString &screen) const override;
    void setDesktopImageUrl(const QString &url, const QString &screen, DesktopScaling scaling,
                            std::function<void(tl::expected<void, DesktopError>)> done) override;

private:
    using Done = std::function<void(tl::expected<void, DesktopError>)>;

    GSettingsReading read() const;
    void refresh();
    void onScreens();
    void restoreCopy();
    bool write(const QString &file, DesktopScaling scaling);
    void endSlideshow();
    void hand(const QString &file, DesktopScaling scaling, const Done &done);
    void later(std::function<void()> fn);

    const GSettingsDesktop &m_desktop;
    GSettingsKeys m_keys;
    GSettingsKeys m_interface; ///< Light or dark.
    GSettingsKeys m_slideshow;
    std::unique_ptr<ScaledCopies> m_copies; ///< Null where the desktop frees its pictures.
    Screens m_screens;
    QString m_file; ///< Plain path of what the desktop shows; may be a copy of ours.
    QString m_url; ///< URL text of what the user sees in it.
    QObject m_context; ///< Queued calls go with it.
    QThreadPool
        m_confirmation; ///< Waits for the settings' service, which may refuse a write later.
};

} // namespace moravel
