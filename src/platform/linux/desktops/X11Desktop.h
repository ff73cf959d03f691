// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"
#include "platform/linux/desktops/DesktopRecord.h"
#include "platform/linux/desktops/RootPainter.h"
#include "platform/linux/desktops/RootWatch.h"
#include "platform/linux/desktops/Screens.h"

#include <QObject>
#include <QThreadPool>

#include <atomic>

namespace moravel {

/// The root window of an X display without a desktop environment: this program paints it. A picture is
/// known while the root still shows the pixmap that this program left there; any other setter takes its
/// place at once. When nobody has set a picture yet (a new session), the recorded ones come back.
class X11Desktop : public DesktopPictures
{
public:
    /// @param recordPath the file that keeps what was set.
    X11Desktop(Files &files, const QString &recordPath, std::unique_ptr<RootWatch> root);
    ~X11Desktop() override;

    /// The root properties that the watch must follow.
    static QList<QByteArray> rootProperties();

    QString name() const override { return QStringLiteral("X11"); }

    DesktopAbilities abilities() const override { return {.perScreen = true}; }

    QList<DesktopScreen> screens() const override { return m_screens.list(); }

    QString desktopImageUrl(const QString &screen) const override;
    void setDesktopImageUrl(const QString &url, const QString &screen, DesktopScaling scaling,
                            std::function<void(tl::expected<void, DesktopError>)> done) override;

private:
    using Done = std::function<void(tl::expected<void, DesktopError>)>;

    struct Waiting
    {
        QString screen;
        Done done;
    };

    void lookWhoseItIs();
    void onRootChanged(const QByteArray &property);
    void repaint();
    void start();
    void paint(const QMap<QString, PaintOrder> &orders, QList<Waiting> waiting);
    void finish(const QMap<QString, PaintOrder> &orders, const QList<Waiting> &waiting,
                const tl::expected<PaintResult, QString> &result);

    DesktopRecordFile m_file;
    DesktopRecord m_record;
    std::unique_ptr<RootWatch> m_root;
    Screens m_screens;
    QMap<QString, PaintOrder> m_orders; ///< Painted together in the next run.
    QList<Waiting> m_waiting; ///< Who is told then.
    bool m_isOurs = false; ///< The root shows what the record says.
    bool m_running = false;
    std::atomic<bool> m_stop = false;
    QObject m_mainThread; ///< Receives the results; those still posted go with it.
    QThreadPool m_worker; ///< Must be last: its destructor waits for the work, which uses m_stop.
};

} // namespace moravel
