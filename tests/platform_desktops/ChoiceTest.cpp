// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/DesktopChoice.h"

#include <gtest/gtest.h>

using namespace moravel;

namespace {

TEST(DesktopChoice, takesTheFirstKnownName)
{
    const struct
    {
        const char *names;
        bool wayland, x11;
        DesktopKind kind;
    } table[] = {
        {"XFCE", false, true, DesktopKind::Xfce},
        {"xfce", false, true, DesktopKind::Xfce},
        {"ubuntu:GNOME", true, true, DesktopKind::Gnome},
        {"Budgie:GNOME", false, true, DesktopKind::Gnome},
        {"X-Cinnamon", false, true, DesktopKind::Cinnamon},
        {"MATE", false, true, DesktopKind::Mate},
        {"KDE", true, true, DesktopKind::Kde},
        {"sway:wlroots", true, false, DesktopKind::Wlroots},
        {"labwc:wlroots", true, true, DesktopKind::Wlroots},
        {"Hyprland", true, true, DesktopKind::Hyprland},
        {"i3", false, true, DesktopKind::X11},
        {"", false, true, DesktopKind::X11},
        {"::", false, true, DesktopKind::X11},
        {"weston", true, true, DesktopKind::Portal},
        {"", false, false, DesktopKind::Portal},
    };

    for (const auto &row : table)
        EXPECT_EQ(chooseDesktop({QString::fromLatin1(row.names), row.wayland, row.x11}), row.kind)
            << row.names;
    EXPECT_EQ(chooseDesktop({QStringLiteral("XFCE"), false, true, true}), DesktopKind::Portal);
}

} // namespace
