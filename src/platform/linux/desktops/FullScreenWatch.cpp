// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/FullScreenWatch.h"

#include "platform/linux/desktops/DesktopChoice.h"
#include "platform/linux/desktops/PlasmaFullScreen.h"
#include "platform/linux/desktops/SwayFullScreen.h"
#include "platform/linux/desktops/X11FullScreen.h"

#include <QGuiApplication>

namespace moravel {

std::unique_ptr<FullScreenWatch> FullScreenWatch::start(qint64 self)
{
    if (const QString sway = qEnvironmentVariable("SWAYSOCK"); !sway.isEmpty())
        return std::make_unique<SwayFullScreen>(sway, self);
    const SessionFacts session = sessionFacts();
    if (session.isWayland && chooseDesktop(session) == DesktopKind::Kde)
        return std::make_unique<PlasmaFullScreen>(self);
    // An X server inside of a Wayland session knows only some of the windows.
    return QGuiApplication::platformName() == u"xcb" ? X11FullScreen::start(self) : nullptr;
}

} // namespace moravel
