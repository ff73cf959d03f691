// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"
#include "platform/linux/desktops/RootWatch.h"
#include "platform/linux/desktops/Screens.h"
#include "platform/linux/desktops/XfceBackdrops.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QObject>

#include <memory>

namespace moravel {

/// The XFCE desktop, through its settings service on the session bus. Pictures are set for all workspaces;
/// what is read is the one that the current workspace shows. A folder that the desktop cycles through is
/// left cycling: the user has asked for it there.
class XfceDesktop : public QObject, public DesktopPictures
{
    Q_OBJECT

public:
    /// @param root the root window with rootProperties(); null where there is no X display, which leaves
    /// one workspace.
    explicit XfceDesktop(std::unique_ptr<RootWatch> root);

    static QList<QByteArray> rootProperties();

    QString name() const override { return QStringLiteral("XFCE"); }

    DesktopAbilities abilities() const override
    {
        return {.perScreen = true, .perWorkspace = true};
    }

    QList<DesktopScreen> screens() const override { return m_screens.list(); }

    QString desktopImageUrl(const QString &screen) const override;
    void setDesktopImageUrl(const QString &url, const QString &screen, DesktopScaling scaling,
                            std::function<void(tl::expected<void, DesktopError>)> done) override;

private Q_SLOTS:
    void onPropertyChanged(const QString &channel, const QString &property,
                           const QDBusVariant &value);
    void onPropertyRemoved(const QString &channel, const QString &property);

private:
    struct Setting;

    void load(QDBus::CallMode mode);
    void send(const std::shared_ptr<Setting> &setting, const QList<xfce::Change> &changes);
    void verify(const std::shared_ptr<Setting> &setting);
    void tellOfCycling(const QString &screen);
    int rootNumber(const char *property, int otherwise) const;

    QDBusConnection m_bus;
    std::unique_ptr<RootWatch> m_root;
    Screens m_screens;
    QDBusServiceWatcher m_services;
    QVariantMap m_properties; ///< What the service holds below /backdrop.
    bool m_toldOfCycling = false;
};

} // namespace moravel
