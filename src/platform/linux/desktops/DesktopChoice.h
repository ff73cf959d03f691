// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"
#include "platform/Files.h"

#include <memory>

namespace moravel {

/// The ways to set a picture that this folder knows.
enum class DesktopKind {
    Gnome,
    Cinnamon,
    Mate,
    Kde,
    Xfce,
    Lxqt,
    Lxde,
    Wlroots,
    Hyprland,
    X11,
    Portal
};

/// What the environment says of the session.
struct SessionFacts
{
    QString
        currentDesktop; ///< XDG_CURRENT_DESKTOP: names with colons between, the most special first.
    bool isWayland = false;
    bool hasX11 = false;
    bool isSandboxed = false; ///< Flatpak or Snap: the desktop's own settings are out of reach.
};

/// The facts of this process's environment.
SessionFacts sessionFacts();

/// The portal in a sandbox. Else chooses by the first name that is known, in any case of letters. Without one: the root window where
/// the session is one of X, else the portal.
DesktopKind chooseDesktop(const SessionFacts &session);

/// What the backends need.
struct DesktopSetup
{
    Files &files;
    QString supportFolder; ///< The program's own data folder, without a closing slash.
};

/// Makes the pictures of the running desktop; null where nothing here can set one.
std::unique_ptr<DesktopPictures> makeDesktopPictures(const DesktopSetup &setup);

} // namespace moravel
