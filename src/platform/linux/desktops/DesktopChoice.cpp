// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/DesktopChoice.h"

#include "platform/linux/desktops/DesktopLog.h"
#include "platform/linux/desktops/HyprlandPictures.h"
#include "platform/linux/desktops/HyprpaperCommands.h"
#include "platform/linux/desktops/PlasmaPictures.h"
#include "platform/linux/desktops/PortalPictures.h"
#include "platform/linux/desktops/SettingsPictures.h"
#include "platform/linux/desktops/WlrootsDesktop.h"
#include "platform/linux/desktops/X11Desktop.h"
#include "platform/linux/desktops/XfceDesktop.h"

#include <QFileInfo>
#include <QHash>
#include <QStandardPaths>

namespace moravel {

namespace {

using Kind = DesktopKind;

const QHash<QString, Kind> &kinds()
{
    static const QHash<QString, Kind> map{
        {QStringLiteral("gnome"), Kind::Gnome},
        {QStringLiteral("gnome-classic"), Kind::Gnome},
        {QStringLiteral("gnome-flashback"), Kind::Gnome},
        {QStringLiteral("unity"), Kind::Gnome},
        {QStringLiteral("budgie"), Kind::Gnome},
        {QStringLiteral("pantheon"), Kind::Gnome},
        {QStringLiteral("x-cinnamon"), Kind::Cinnamon},
        {QStringLiteral("cinnamon"), Kind::Cinnamon},
        {QStringLiteral("mate"), Kind::Mate},
        {QStringLiteral("kde"), Kind::Kde},
        {QStringLiteral("xfce"), Kind::Xfce},
        {QStringLiteral("lxqt"), Kind::Lxqt},
        {QStringLiteral("lxde"), Kind::Lxde},
        {QStringLiteral("hyprland"), Kind::Hyprland},
        {QStringLiteral("sway"), Kind::Wlroots},
        {QStringLiteral("wlroots"), Kind::Wlroots},
        {QStringLiteral("river"), Kind::Wlroots},
        {QStringLiteral("labwc"), Kind::Wlroots},
        {QStringLiteral("wayfire"), Kind::Wlroots},
        {QStringLiteral("niri"), Kind::Wlroots},
        {QStringLiteral("dwl"), Kind::Wlroots},
    };
    return map;
}

std::unique_ptr<DesktopPictures> makeX11(const DesktopSetup &setup)
{
    auto root = RootWatch::start(X11Desktop::rootProperties());
    if (!root)
        return nullptr;
    return std::make_unique<X11Desktop>(
        setup.files, setup.supportFolder + QStringLiteral("/Desktop-X11.json"), std::move(root));
}

std::unique_ptr<DesktopPictures> makeWlroots(const DesktopSetup &setup)
{
    return std::make_unique<WlrootsDesktop>(
        setup.files, setup.supportFolder + QStringLiteral("/Desktop-wlroots.json"));
}

// Where hyprpaper does not run, the painter of the other compositors does as well.
std::unique_ptr<DesktopPictures> makeHyprland(const DesktopSetup &setup)
{
    const QString socket = hyprpaper::socketPath();
    if (!QFileInfo::exists(socket)
        && !QStandardPaths::findExecutable(QStringLiteral("swaybg")).isEmpty())
        return makeWlroots(setup);
    return std::make_unique<HyprlandPictures>(socket);
}

std::unique_ptr<DesktopPictures> makePortal(const DesktopSetup &setup)
{
    if (PortalPictures::isThere())
        return std::make_unique<PortalPictures>(
            setup.files, setup.supportFolder + QStringLiteral("/Desktop-portal.json"));
    qCInfo(desktopsLog) << "no way to set a picture on this desktop:"
                        << sessionFacts().currentDesktop;
    return nullptr;
}

} // namespace

SessionFacts sessionFacts()
{
    return {qEnvironmentVariable("XDG_CURRENT_DESKTOP"),
            !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"),
            !qEnvironmentVariableIsEmpty("DISPLAY"),
            QFileInfo::exists(QStringLiteral("/.flatpak-info"))
                || !qEnvironmentVariableIsEmpty("SNAP_NAME")};
}

DesktopKind chooseDesktop(const SessionFacts &session)
{
    if (session.isSandboxed)
        return Kind::Portal;
    const QStringList names = session.currentDesktop.toLower().split(u':', Qt::SkipEmptyParts);
    for (const QString &name : names) {
        const auto kind = kinds().constFind(name.trimmed());
        if (kind != kinds().cend())
            return *kind;
    }
    return session.hasX11 && !session.isWayland ? Kind::X11 : Kind::Portal;
}

std::unique_ptr<DesktopPictures> makeDesktopPictures(const DesktopSetup &setup)
{
    switch (chooseDesktop(sessionFacts())) {
    case Kind::Gnome:
    case Kind::Cinnamon:
    case Kind::Mate:
    case Kind::Lxqt:
    case Kind::Lxde:
        return makeSettingsPictures(sessionFacts().currentDesktop, setup.supportFolder);
    case Kind::Kde:
        return std::make_unique<PlasmaPictures>();
    case Kind::Xfce:
        return std::make_unique<XfceDesktop>(RootWatch::start(XfceDesktop::rootProperties()));
    case Kind::Wlroots:
        return makeWlroots(setup);
    case Kind::Hyprland:
        return makeHyprland(setup);
    case Kind::X11:
        return makeX11(setup);
    case Kind::Portal:
        return makePortal(setup);
    }
    return nullptr;
}

} // namespace moravel
