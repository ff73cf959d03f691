// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"
#include "platform/linux/desktops/DesktopRecord.h"
#include "platform/linux/desktops/Screens.h"
#include "platform/linux/desktops/SwaybgClient.h"

#include <QElapsedTimer>
#include <QHash>
#include <QList>
#include <QObject>

namespace moravel {

/// sway and other compositors with the layer-shell protocol: a swaybg of our own for each output. They
/// cannot be asked, so a record says what is shown while its process runs. At start, when an output
/// appears and when a client ends, recorded pictures whose process has gone come back. A client that the
/// compositor's own configuration has started may cover ours: it is ended once nobody needs it.
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

    struct Client
    {
        std::unique_ptr<swaybg::EndWatch> watch;
        QElapsedTimer running;
        int ends = 0; ///< How often it ended soon after its start.
    };

    void restore();
    void follow(const QString &screen);
    void onEnded(const QString &screen);
    void startAgain(const QString &screen, const swaybg::Process &ended);
    swaybg::Process clientOf(const QString &screen) const;
    QList<swaybg::Process> ours() const;
    void uncover(const QString &screen);
    void launch(const QString &screen, const DesktopRecordEntry &entry, Done done);
    void adopt(const QString &screen, const DesktopRecordEntry &entry, const Done &done);
    void endLater(const swaybg::Process &process);

    DesktopRecordFile m_file;
    DesktopRecord m_record;
    Screens m_screens;
    QHash<QString, std::shared_ptr<Client>> m_clients; ///< By screen: those that are followed.
    bool m_toldOfRival = false;
    QList<swaybg::Process> m_ending; ///< Covered by their successors, still running.
    QList<swaybg::Process> m_starting; ///< Not yet known to have come up.
    QObject m_timers; ///< Context of the delayed calls.
};

} // namespace moravel
