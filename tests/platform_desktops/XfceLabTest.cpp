// SPDX-License-Identifier: MIT
#include "platform_desktops/DesktopLab.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>

using namespace moravel;
using namespace moravel::testing;

namespace {

using XfceLab = DesktopLab;

/// Sets a property as the desktop's own settings window would.
void xfconf(const QString &property, const QString &type, const QString &value)
{
    ASSERT_EQ(QProcess::execute(QStringLiteral("xfconf-query"),
                                {QStringLiteral("-c"), QStringLiteral("xfce4-desktop"),
                                 QStringLiteral("-p"), property, QStringLiteral("-n"),
                                 QStringLiteral("-t"), type, QStringLiteral("-s"), value}),
              0);
}

TEST_F(XfceLab, setsOneScreenAndBoth)
{
    setsOneScreenAndBoth();
}

TEST_F(XfceLab, laysOutEachSizing)
{
    laysOutEachSizing();
}

TEST_F(XfceLab, takesOddNames)
{
    takesOddNames();
}

TEST_F(XfceLab, followsTheSettingsWindowAndTheWorkspaces)
{
    const QString red = picture(QStringLiteral("red.png"), {900, 700}, Qt::red);
    const QString blue = picture(QStringLiteral("blue.png"), {900, 700}, Qt::blue);
    ASSERT_EQ(set(red, first, DesktopScaling::Fill), QString());
    const QString base = QStringLiteral("/backdrop/screen0/monitor%1/workspace1/").arg(first);
    xfconf(base + QStringLiteral("last-image"), QStringLiteral("string"), blue);
    xfconf(QStringLiteral("/backdrop/single-workspace-mode"), QStringLiteral("bool"),
           QStringLiteral("false"));
    QProcess::execute(QStringLiteral("wmctrl"), {QStringLiteral("-s"), QStringLiteral("1")});
    MORAVEL_WAIT(shown(first) == blue);
    EXPECT_TRUE(seen(0, Middle, Qt::blue));
    ASSERT_EQ(set(red, first, DesktopScaling::Fill), QString());
    EXPECT_TRUE(seen(0, Middle, Qt::red));

    xfconf(base + QStringLiteral("backdrop-cycle-enable"), QStringLiteral("bool"),
           QStringLiteral("true"));
    MORAVEL_WAIT(shown(first).endsWith(u'/'));
    xfconf(base + QStringLiteral("backdrop-cycle-enable"), QStringLiteral("bool"),
           QStringLiteral("false"));
    QProcess::execute(QStringLiteral("wmctrl"), {QStringLiteral("-s"), QStringLiteral("0")});
    xfconf(QStringLiteral("/backdrop/single-workspace-mode"), QStringLiteral("bool"),
           QStringLiteral("true"));
    MORAVEL_WAIT(!shown(first).endsWith(u'/'));
}

TEST_F(XfceLab, tellsWhenTheDesktopStartsAgain)
{
    const QString red = picture(QStringLiteral("red.png"), {900, 700}, Qt::red);
    ASSERT_EQ(set(red, first, DesktopScaling::Fill), QString());
    bool told = false;
    m_desktop->onScreensChanged = [&] { told = true; };
    QProcess::execute(QStringLiteral("xfdesktop"), {QStringLiteral("--quit")});
    MORAVEL_WAIT(!QDBusConnection::sessionBus().interface()->isServiceRegistered(
        QStringLiteral("org.xfce.xfdesktop")));
    QProcess desktop;
    desktop.start(QStringLiteral("xfdesktop"), {});
    MORAVEL_WAIT(told);
    EXPECT_EQ(shown(first), red);
    EXPECT_TRUE(seen(0, Middle, Qt::red));
    desktop.terminate();
    desktop.waitForFinished();
}

} // namespace
