// SPDX-License-Identifier: MIT
#include "platform_desktops/DesktopLab.h"

using namespace moravel;
using namespace moravel::testing;

namespace {

using X11Lab = DesktopLab;

TEST_F(X11Lab, setsOneScreenAndBoth)
{
    setsOneScreenAndBoth();
}

TEST_F(X11Lab, laysOutEachSizing)
{
    laysOutEachSizing();
}

TEST_F(X11Lab, takesOddNames)
{
    takesOddNames();
}

TEST_F(X11Lab, repaintsARewrittenFile)
{
    repaintsARewrittenFile();
}

TEST_F(X11Lab, followsThePluggedScreen)
{
    followsThePluggedScreen();
}

TEST_F(X11Lab, keepsThePictureWhenThePictureCannotBeRead)
{
    const QString red = picture(QStringLiteral("red.png"), {900, 700}, Qt::red);
    ASSERT_EQ(set(red, first, DesktopScaling::Fill), QString());
    EXPECT_NE(set(QStringLiteral("/none.png"), first, DesktopScaling::Fill), QString());
    EXPECT_NE(set(QString(), first, DesktopScaling::Fill), QString());
    EXPECT_EQ(shown(first), red);
    EXPECT_TRUE(seen(0, Middle, Qt::red));
}

TEST_F(X11Lab, noticesAnotherSetterAndPaintsAroundIt)
{
    const QString red = picture(QStringLiteral("red.png"), {900, 700}, Qt::red);
    const QString blue = picture(QStringLiteral("blue.png"), {900, 700}, Qt::blue);
    ASSERT_EQ(set(red, first, DesktopScaling::Fill), QString());
    ASSERT_EQ(run(QStringLiteral("xwallpaper"), {QStringLiteral("--zoom"), blue}), 0);
    MORAVEL_WAIT(shown(first).isEmpty());
    ASSERT_EQ(set(red, first, DesktopScaling::Fill), QString());
    EXPECT_TRUE(seen(0, Middle, Qt::red) && seen(1, Middle, Qt::blue));
    EXPECT_EQ(shown(first), red);
    EXPECT_EQ(shown(second), QString());
}

TEST_F(X11Lab, remembersAcrossStartsAndPaintsANewSessionAgain)
{
    const QString red = picture(QStringLiteral("red.png"), {900, 700}, Qt::red);
    ASSERT_EQ(set(red, second, DesktopScaling::Fill), QString());
    m_desktop = make();
    EXPECT_EQ(shown(second), red);
    for (const char *name : {"_XROOTPMAP_ID", "ESETROOT_PMAP_ID"})
        run(QStringLiteral("xprop"),
            {QStringLiteral("-root"), QStringLiteral("-remove"), QString::fromLatin1(name)});
    MORAVEL_WAIT(shown(second).isEmpty());
    run(QStringLiteral("xsetroot"), {QStringLiteral("-solid"), QStringLiteral("#00ff00")});
    m_desktop = make();
    EXPECT_TRUE(seen(1, Middle, Qt::red));
    MORAVEL_WAIT(shown(second) == red);
}

TEST_F(X11Lab, paintsAgainWhenAScreenComesBack)
{
    const QString red = picture(QStringLiteral("red.png"), {900, 700}, Qt::red);
    const QString blue = picture(QStringLiteral("blue.png"), {900, 700}, Qt::blue);
    ASSERT_EQ(set(red, first, DesktopScaling::Fill), QString());
    ASSERT_EQ(set(blue, second, DesktopScaling::Fill), QString());
    int told = 0;
    m_desktop->onScreensChanged = [&] { ++told; };
    run(QStringLiteral("xrandr"), {QStringLiteral("--output"), second, QStringLiteral("--off")});
    MORAVEL_WAIT(told == 1 && m_desktop->screens().size() == 1);
    run(QStringLiteral("xrandr"),
        {QStringLiteral("--output"), second, QStringLiteral("--mode"), QStringLiteral("800x600"),
         QStringLiteral("--pos"), QStringLiteral("800x0")});
    MORAVEL_WAIT(told == 2 && m_desktop->screens().size() == 2);
    EXPECT_TRUE(seen(0, Middle, Qt::red) && seen(1, Middle, Qt::blue));
    EXPECT_EQ(shown(second), blue);
}

} // namespace
