// SPDX-License-Identifier: MIT
#include "support/Test.h"

#include "platform/linux/desktops/DesktopChoice.h"

namespace {

TEST(DesktopChoice, takesTheFirstKnownName)
{
    const Table<const char *, bool, bool, DesktopKind> table{
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
    for (const auto &[names, wayland, x11, kind] : table)
        EXPECT_EQ(chooseDesktop({QString::fromLatin1(names), wayland, x11}), kind) << names;
    EXPECT_EQ(chooseDesktop({u"XFCE"_s, false, true, true}), DesktopKind::Portal);
}

} // namespace
