// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"
#include "platform/linux/desktops/DesktopRecord.h"
#include "platform/linux/desktops/Screens.h"
#include "platform/linux/desktops/SwaybgClient.h"

#include <QList>
#include <QObject>

namespace moravel {

/// sway and other compositors with the layer-shell protocol: a swaybg of our own for each output. They
/// cannot be asked, so a record says what is shown while its process runs. At start and when an output
/// appears, recorded pictures whose process has gone come back.
class WlrootsDesktop : public DesktopPictures
{
public:
    /// @param recordPath the file that keeps what was set.
    WlrootsDesktop(Files &files, const QString &recordPath);
    ~WlrootsDesktop() override;

    QString name() const override { return QStringLiteral("wlroots"); }

    DesktopAbilities abilities() const override { return {.perScreen = true}; }

    QList<DesktopScreen> screens() const override { return m_screens.list(); }

    QString desktopImageUrl(const QString &screen) const override;
    void setDesktopImageUrl(const QString &url, const QString &screen, DesktopScaling scaling,
                            std::function<void(tl::expected<void, DesktopError>)> done) override;

private:
    using Done = std::function<void(tl::expected<void, DesktopError>)>;

    void restore();
    void launch(const QString &screen, const DesktopRecordEntry &entry, Done done);
    void adopt(const QString &screen, const DesktopRecordEntry &entry, const Done &done);
    void endLater(const swaybg::Process &process);

    DesktopRecordFile m_file;
    DesktopRecord m_record;
    Screens m_screens;
    QList<swaybg::Process> m_ending; ///< Covered by their successors, still running.
    QList<swaybg::Process> m_starting; ///< Not yet known to have come up.
    QObject m_timers; ///< Context of the delayed calls.
};

} // namespace moravel
