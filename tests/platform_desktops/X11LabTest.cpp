// SPDX-License-Identifier: MIT
#include "platform_desktops/DesktopLab.h"

#include "platform/linux/desktops/FullScreenWatch.h"
#include "platform/linux/desktops/Xcb.h"

#include <unistd.h>

namespace {

using X11Lab = DesktopLab;

DESKTOP_TESTS(X11Lab)

TEST_F(X11Lab, keepsThePictureWhenThePictureCannotBeRead)
{
    ASSERT_EQ(set(red, first, Fill), QString());
    EXPECT_NE(set(u"/none.png"_s, first, Fill), QString());
    EXPECT_NE(set(QString(), first, Fill), QString());
    EXPECT_EQ(shown(first), red);
    EXPECT_TRUE(seen(0, Middle, Qt::red));
}

TEST_F(X11Lab, noticesAnotherSetterAndPaintsAroundIt)
{
    ASSERT_EQ(set(red, first, Fill), QString());
    ASSERT_EQ(run(u"xwallpaper --zoom"_s, {blue}), 0);
    MORAVEL_WAIT(shown(first).isEmpty());
    ASSERT_EQ(set(red, first, Fill), QString());
    EXPECT_TRUE(seen(0, Middle, Qt::red) && seen(1, Middle, Qt::blue));
    EXPECT_EQ(shown(first), red);
    EXPECT_EQ(shown(second), QString());
}

TEST_F(X11Lab, remembersAcrossStartsAndPaintsANewSessionAgain)
{
    ASSERT_EQ(set(red, second, Fill), QString());
    m_desktop = make();
    EXPECT_EQ(shown(second), red);
    for (const char *name : {"_XROOTPMAP_ID", "ESETROOT_PMAP_ID"})
        run(u"xprop -root -remove"_s, {QLatin1String(name)});
    MORAVEL_WAIT(shown(second).isEmpty());
    run(u"xsetroot -solid #00ff00"_s);
    m_desktop = make();
    EXPECT_TRUE(seen(1, Middle, Qt::red));
    MORAVEL_WAIT(shown(second) == red);
}

TEST_F(X11Lab, paintsAgainWhenAScreenComesBack)
{
    ASSERT_EQ(set(red, first, Fill), QString());
    ASSERT_EQ(set(blue, second, Fill), QString());
    int told = 0;
    m_desktop->onScreensChanged = [&] { ++told; };
    plug(false);
    MORAVEL_WAIT(told == 1 && m_desktop->screens().size() == 1);
    plug(true);
    MORAVEL_WAIT(told == 2 && m_desktop->screens().size() == 2);
    EXPECT_TRUE(seen(0, Middle, Qt::red) && seen(1, Middle, Qt::blue));
    EXPECT_EQ(shown(second), blue);
}

// A window manager is not needed for what it would tell.
TEST_F(X11Lab, knowsWhenAnotherProgramFillsTheScreen)
{
    const auto watch = FullScreenWatch::start();
    const auto display = x11::openDisplay();
    ASSERT_TRUE(watch && display);
    int told = 0;
    watch->onChanged = [&told] { ++told; };
    xcb_connection_t *c = display->connection.get();
    const xcb_window_t root = display->screen->root;
    const xcb_window_t window = xcb_generate_id(c);
    xcb_create_window(c, 0, window, root, 0, 0, 9, 9, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    const auto set = [c](xcb_window_t of, const char *name, xcb_atom_t type, quint32 value) {
        xcb_change_property(c, XCB_PROP_MODE_REPLACE, of, x11::atom(c, name), type, 32, 1, &value);
        xcb_flush(c);
    };
    const quint32 fullScreen = x11::atom(c, "_NET_WM_STATE_FULLSCREEN");
    set(root, "_NET_ACTIVE_WINDOW", XCB_ATOM_WINDOW, window);
    set(window, "_NET_WM_STATE", XCB_ATOM_ATOM, fullScreen);
    MORAVEL_WAIT(watch->isFullScreen());
    EXPECT_TRUE(FullScreenWatch::start()->isFullScreen());
    set(root, "_NET_ACTIVE_WINDOW", XCB_ATOM_WINDOW, XCB_NONE);
    MORAVEL_WAIT(!watch->isFullScreen());
    set(root, "_NET_ACTIVE_WINDOW", XCB_ATOM_WINDOW, window);
    MORAVEL_WAIT(watch->isFullScreen());
    set(window, "_NET_WM_PID", XCB_ATOM_CARDINAL, static_cast<quint32>(::getpid()));
    set(window, "_NET_WM_STATE", XCB_ATOM_ATOM, fullScreen);
    MORAVEL_WAIT(!watch->isFullScreen()); // it is ours: the user looks at our pictures
    EXPECT_EQ(told, 4);
    xcb_destroy_window(c, window);
}

DESKTOP_TEST(X11Lab, followsThePluggedScreen)

} // namespace
